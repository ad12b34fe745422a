#pragma once
// The pointer while the program works.

namespace lirmeto::ui {

// Work begins, and has ended: calls nest.
void MostraAttesa(bool si);

// While this lives the pointer is the usual one: the program waits for the user.
class TempoDellUtente {
public:
  TempoDellUtente();
  ~TempoDellUtente();
  TempoDellUtente(const TempoDellUtente&) = delete;
  TempoDellUtente& operator=(const TempoDellUtente&) = delete;

private:
  int lavori_ = 0; // under way when it began
};

} // namespace lirmeto::ui
