#include "ui/comuni/azioni_modifica.h"

#include <QWidget>

#include "app/comandi_viaggio.h"

namespace cronovia {

using namespace Qt::StringLiterals;

AzioniModifica::AzioniModifica(QWidget& finestra, const QList<QWidget*>& altri, Postazione& postazione,
                               const Esegui& esegui)
    : QObject(&finestra), postazione_(postazione), annulla_(new QAction(this)), ripeti_(new QAction(this)) {
    annulla_->setObjectName(u"annulla"_s);
    annulla_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
    ripeti_->setObjectName(u"ripeti"_s);
    ripeti_->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    connect(annulla_, &QAction::triggered, this, [this, esegui] { esegui([this] { comandi::Annulla(postazione_); }); });
    connect(ripeti_, &QAction::triggered, this, [this, esegui] { esegui([this] { comandi::Ripeti(postazione_); }); });
    finestra.addActions({annulla_, ripeti_});
    for (QWidget* altro : altri) altro->addActions({annulla_, ripeti_});
}

void AzioniModifica::Mostra(bool libere) {
    const auto mostra = [libere](QAction& azione, const QString& verbo, const std::optional<QString>& nome) {
        azione.setEnabled(libere && nome.has_value());
        azione.setText(nome ? verbo + u' ' + *nome : verbo);
    };
    mostra(*annulla_, u"Annulla"_s, postazione_.DaAnnullare());
    mostra(*ripeti_, u"Ripeti"_s, postazione_.DaRipetere());
}

}  // namespace cronovia
