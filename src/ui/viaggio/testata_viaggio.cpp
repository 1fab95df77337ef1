// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/viaggio/testata_viaggio.h"

#include <QHBoxLayout>
#include <QPainter>

#include "calendar/testo.h"
#include "schedule/testi_ore.h"
#include "ui/comuni/azioni.h"
#include "ui/comuni/colori.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

// As much of its text as there is room for. The text itself is one where no name can mark a letter.
class ScrittaStretta : public QLabel {
  public:
    ScrittaStretta() { setTextFormat(Qt::PlainText); }

    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

    void Mostra(const QString& testo) {
        setText(InScritta(testo));
        setAccessibleName(Visibile(testo));
        MostraIstruzione(*this, testo);
        update();
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         fontMetrics().elidedText(accessibleName(), Qt::ElideRight, width()));
    }
};

namespace {

QString Giorno(NumeroGiorno giorno) { return GiornoSettimana(giorno).toLower() + u' ' + TestoData(giorno); }

QString Periodo(const Documento& documento) {
    const std::optional<NumeroGiorno> inizio = documento.Campi().dataInizio;
    const Cronovia* cronovia = documento.Ultima();
    if (!inizio) return u"senza data d'inizio"_s;
    if (cronovia == nullptr || !cronovia->fine) return u"dal "_s + Giorno(*inizio);
    const FineViaggio& fine = *cronovia->fine;
    if (fine.data == *inizio) return Giorno(*inizio) + u" · 1 giorno"_s;
    return u"%1 – %2 · %3 giorni"_s.arg(Giorno(*inizio), Giorno(fine.data), QString::number(fine.giorni));
}

// Destination, dates and days.
QString InBreve(const Documento& documento) {
    const QString localita = documento.Campi().localita.trimmed();
    const QString nazione = documento.Campi().nazione.trimmed();
    if (localita.isEmpty() && nazione.isEmpty()) return {};
    return u"%1 (%2) · %3"_s.arg(localita, nazione, Periodo(documento));
}

}  // namespace

TestataViaggio::TestataViaggio(const Postazione& postazione, QWidget& campi)
    : postazione_(postazione),
      campi_(campi),
      azione_(new QAction(this)),
      maniglia_(new QToolButton),
      riassunto_(new ScrittaStretta),
      scadenza_(new ScrittaStretta) {
    setObjectName(u"testataViaggio"_s);
    Presenta(*azione_, Comando::DatiDelViaggio);
    azione_->setCheckable(true);
    azione_->setChecked(true);
    maniglia_->setObjectName(u"maniglia"_s);
    maniglia_->setText(azione_->text());
    maniglia_->setAutoRaise(true);
    maniglia_->setFocusPolicy(Qt::NoFocus);
    maniglia_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    MostraIstruzione(*maniglia_, u"%1 (%2)"_s.arg(QString::fromUtf16(Descrizione(Comando::DatiDelViaggio).istruzione),
                                                  azione_->shortcut().toString(QKeySequence::NativeText)));
    riassunto_->setObjectName(u"lblRiassunto"_s);
    scadenza_->setObjectName(u"lblRiassuntoScadenza"_s);
    QFont grassetto = riassunto_->font();
    grassetto.setBold(true);
    riassunto_->setFont(grassetto);
    auto* layout = Spaziato(new QHBoxLayout(this), Spazi::Riga);
    layout->addWidget(maniglia_);
    layout->addWidget(riassunto_);
    layout->addSpacing(kSpazio);
    layout->addWidget(scadenza_);
    layout->addStretch();
    maniglia_->setFixedHeight(maniglia_->fontMetrics().height() + kSpazio);
    connect(maniglia_, &QToolButton::clicked, azione_, &QAction::toggle);
    connect(azione_, &QAction::toggled, this, &TestataViaggio::Disponi);
    Disponi();
}

bool TestataViaggio::Nuova() const {
    const auto* viaggio = postazione_.Su<schermata::Viaggio>();
    return viaggio != nullptr && viaggio->fase == schermata::Viaggio::Fase::Nuova;
}

bool TestataViaggio::Altrove() const {
    return postazione_.SenzaMete() || postazione_.Su<schermata::Scambio>() != nullptr;
}

void TestataViaggio::Disponi() {
    const bool altrove = Altrove();
    const bool inVista = Nuova() || (azione_->isChecked() && !altrove);
    campi_.setVisible(inVista);
    maniglia_->setArrowType(inVista ? Qt::DownArrow : Qt::RightArrow);
    riassunto_->setVisible(!inVista && !altrove);
    scadenza_->setVisible(!inVista && !altrove && !scadenza_->text().isEmpty());
}

void TestataViaggio::Mostra() {
    azione_->setEnabled(!Nuova() && !Altrove());
    maniglia_->setEnabled(azione_->isEnabled());
    maniglia_->setVisible(!Altrove());
    const Documento& documento = postazione_.documento;
    riassunto_->Mostra(InBreve(documento));
    const auto& cronovia = documento.Calcolata();
    const bool entro = cronovia && cronovia->scadenza;
    scadenza_->Mostra(entro ? Testo(*cronovia->scadenza, *cronovia) : QString());
    QPalette colori = palette();
    if (entro && cronovia->scadenza->margine < 0_cent) {
        colori.setColor(QPalette::WindowText, ColoreRitardo(colori, QPalette::Window, QPalette::WindowText));
    }
    scadenza_->setPalette(colori);
    Disponi();
}

}  // namespace cronovia
