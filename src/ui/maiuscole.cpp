#include "ui/maiuscole.h"

#include <QLineEdit>
#include <QValidator>

namespace cronovia {

namespace {

class Maiuscole : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString& testo, int& /*posizione*/) const override {
        const QString maiuscolo = testo.toUpper();
        if (maiuscolo.size() == testo.size()) testo = maiuscolo;
        return Acceptable;
    }
};

}  // namespace

void ScriviMaiuscolo(QLineEdit& casella) { casella.setValidator(new Maiuscole(&casella)); }

}  // namespace cronovia
