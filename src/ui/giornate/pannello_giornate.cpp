// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/giornate/pannello_giornate.h"

#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/comuni/testo_mostrato.h"
#include "ui/giornate/striscia_giornata.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// What the bars stand for; as many as there is room for.
class Legenda : public QWidget {
  public:
    Legenda() { setAccessibleName(u"Legenda delle giornate"_s); }

    QSize sizeHint() const override { return {200, fontMetrics().height() + 4}; }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        const int lato = fontMetrics().height() - 2;
        int x = 4;
        for (int i = 0; i < kGeneriPezzo; ++i) {
            const auto genere = static_cast<GenerePezzo>(i);
            if (genere == GenerePezzo::Cena) continue;  // looks like lunch
            const QString nome = genere == GenerePezzo::Pranzo ? u"pasto"_s : Aspetto(genere).nome.toString();
            const int larga = 2 * lato + 4 + fontMetrics().horizontalAdvance(nome) + 12;
            if (x + larga > width()) break;
            DipingiBarra(painter, QRectF(x + 0.5, 2.5, 2 * lato, lato), genere, palette());
            painter.setPen(palette().color(QPalette::WindowText));
            painter.drawText(QRect(x + 2 * lato + 4, 0, larga, height()), Qt::AlignLeft | Qt::AlignVCenter, nome);
            x += larga;
        }
    }
};

// Why there are no days to show; kilometres that are missing come before a calculation.
QString PercheVuoto(const Documento& documento) {
    if (!documento.Impedimento().isEmpty()) return documento.Impedimento();
    const RigheItinerario& righe = documento.Righe();
    const bool mancano = std::any_of(righe.begin(), righe.end(), [](const Tappa& t) { return t.kmDaIndicare; });
    return mancano ? u"Indica i chilometri che mancano, poi calcola la cronovia per vedere le giornate."_s
                   : u"Calcola la cronovia per vedere le giornate."_s;
}

}  // namespace

PannelloGiornate::PannelloGiornate(QWidget* parent)
    : Pannello(u"Giornate"_s, parent), vista_(new VistaGiornate(modello_)), avviso_(NuovaScritta()) {
    setObjectName(u"pannelloGiornate"_s);
    toggleViewAction()->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_G));
    auto* contenuto = new QWidget;
    auto* layout = new QVBoxLayout(contenuto);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    avviso_->setObjectName(u"lblGiornate"_s);
    avviso_->setTextFormat(Qt::PlainText);
    avviso_->setWordWrap(true);
    layout->addWidget(avviso_);
    layout->addWidget(vista_, 1);
    layout->addWidget(new Legenda);
    setWidget(contenuto);
    connect(vista_, &VistaGiornate::RigaScelta, this, &PannelloGiornate::RigaScelta);
    connect(vista_, &VistaGiornate::GiornataScelta, this, &PannelloGiornate::GiornataScelta);
    connect(vista_, &VistaGiornate::GiornataLasciata, this, &PannelloGiornate::GiornataLasciata);
    connect(vista_, &VistaGiornate::Sposta, this, [this](int passo) {
        if (vista_->currentIndex().isValid()) Q_EMIT Sposta(vista_->currentIndex().row(), passo);
    });
}

void PannelloGiornate::Mostra(const Postazione& postazione) {
    documento_ = &postazione.documento;
    if (isVisible()) Aggiorna();
}

// Nothing is computed for a panel that nobody sees.
void PannelloGiornate::showEvent(QShowEvent* event) {
    Pannello::showEvent(event);
    Aggiorna();
}

void PannelloGiornate::Aggiorna() {
    if (documento_ == nullptr || mostrata_ == documento_->VersioneCronovia()) return;
    mostrata_ = documento_->VersioneCronovia();
    const Cronovia* cronovia = documento_->Ultima();
    modello_.Mostra(cronovia, documento_->Giornate());
    MostraScritta(*avviso_, cronovia != nullptr ? QString() : PercheVuoto(*documento_));
    avviso_->setVisible(cronovia == nullptr);
}

void PannelloGiornate::Segue(int giornata, int riga) {
    if (!isVisible()) return;
    Aggiorna();
    vista_->Segna(riga);
    vista_->VaiAllaGiornata(giornata);
}

}  // namespace cronovia
