#pragma once
// The texts of an extract, each on its page, with a search over the page in view.

#include <QWidget>

#include <map>
#include <string>
#include <string_view>

class QTabWidget;

namespace lirmeto::ui {

class BarraRicerca;
class CasellaTesto;

class TestiEstratto : public QWidget {
  Q_OBJECT
public:
  explicit TestiEstratto(QWidget* padre = nullptr);

  // The pages: the file's rows, its parcels, its owners. Lines at CR LF.
  void Mostra(std::string_view file, std::string_view particelle, std::string_view ditte);

private:
  CasellaTesto* AggiungiPagina(const QString& titolo, const QString& nome);
  [[nodiscard]] CasellaTesto& InVista() const;
  void Cerca();
  void Trova(bool avanti);

  QTabWidget* pagine_;
  BarraRicerca* ricerca_;
  CasellaTesto* file_;
  CasellaTesto* particelle_;
  CasellaTesto* ditte_;
  std::map<const CasellaTesto*, std::string> mostrati_;
};

} // namespace lirmeto::ui
