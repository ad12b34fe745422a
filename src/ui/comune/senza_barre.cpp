#include <ui/comune/senza_barre.h>

#include <QLineEdit>
#include <QValidator>

namespace lirmeto::ui {

namespace {

class SenzaBarre : public QValidator {
public:
  explicit SenzaBarre(QLineEdit& casella) : QValidator(&casella), casella_(casella) {}

  State validate(QString& testo, int& posto) const override {
    const bool incollato = testo.size() > casella_.text().size() + 1;
    if (incollato) {
      testo.replace(u'|', u' ');
    } else {
      posto -= static_cast<int>(testo.left(posto).count(u'|'));
      testo.remove(u'|');
    }
    return Acceptable;
  }

private:
  QLineEdit& casella_;
};

} // namespace

void RifiutaBarre(QLineEdit& casella) {
  casella.setValidator(new SenzaBarre(casella));
}

} // namespace lirmeto::ui
