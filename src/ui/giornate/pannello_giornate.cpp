// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/giornate/pannello_giornate.h"

#include <QMainWindow>
#include <QPainter>
#include <QResizeEvent>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "app/comandi_righe.h"
#include "ui/aspetto_finestra.h"
#include "ui/comuni/azioni.h"
#include "ui/comuni/spazi.h"
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

PannelloGiornate::PannelloGiornate(Postazione& postazione, Esegui esegui)
    : Pannello(Comando::Giornate),
      postazione_(postazione),
      esegui_(std::move(esegui)),
      vista_(new VistaGiornate(modello_)),
      avviso_(NuovaScritta()) {
    setObjectName(u"pannelloGiornate"_s);
    auto* contenuto = new QWidget;
    auto* layout = Spaziato(new QVBoxLayout(contenuto), Spazi::Riquadro);
    avviso_->setObjectName(u"lblGiornate"_s);
    avviso_->setTextFormat(Qt::PlainText);
    avviso_->setWordWrap(true);
    layout->addWidget(avviso_);
    layout->addWidget(vista_, 1);
    legenda_ = new Legenda;
    layout->addWidget(legenda_);
    setWidget(contenuto);
    connect(vista_, &VistaGiornate::RigaScelta, this, &PannelloGiornate::RigaScelta);
    connect(vista_, &VistaGiornate::GiornataScelta, this, &PannelloGiornate::GiornataScelta);
    connect(vista_, &VistaGiornate::GiornataLasciata, this, [this](int giornata, int prima) {
        esegui_([&] { comandi::SpostaGiornataPrimaDi(postazione_, giornata, prima); });
    });
    connect(this, &QDockWidget::dockLocationChanged, this, &PannelloGiornate::LimitaAltezza);
    connect(this, &QDockWidget::topLevelChanged, this, &PannelloGiornate::LimitaAltezza);
    CreaAzioni();
}

// What can be done with the current day.
void PannelloGiornate::CreaAzioni() {
    auto* righe = new QAction(u"&Vai alle sue righe"_s, this);
    righe->setObjectName(u"vaiAlleRighe"_s);
    vista_->addAction(righe);
    connect(righe, &QAction::triggered, this, &PannelloGiornate::RigheChieste);
    connect(vista_, &VistaGiornate::activated, righe, &QAction::trigger);
    auto* stacco = new QAction(this);
    stacco->setSeparator(true);
    vista_->addAction(stacco);
    fine_ = NuovaAzione(u"fineDelGiorno"_s, {}, {}, &comandi::FineGiornata);
    fine_->setCheckable(true);
    connect(vista_, &VistaGiornate::MenuChiesto, this, &PannelloGiornate::MostraFine);
    MostraFine();
    NuovaAzione(u"giornoSu"_s, u"Sposta s&u"_s, TastoDi(Comando::SpostaSu),
                [](Postazione& p, int giornata) { comandi::SpostaGiornata(p, giornata, -1); });
    NuovaAzione(u"giornoGiu"_s, u"Sposta &giù"_s, TastoDi(Comando::SpostaGiu),
                [](Postazione& p, int giornata) { comandi::SpostaGiornata(p, giornata, 1); });
    NuovaAzione(u"duplicaGiorno"_s, u"&Duplica le sue tappe"_s, {}, &comandi::DuplicaGiornata);
    NuovaAzione(u"togliGiorno"_s, u"&Togli le sue tappe"_s, TastoDi(Comando::TogliRighe), &comandi::TogliGiornata);
}

QAction* PannelloGiornate::NuovaAzione(const QString& nome, const QString& testo, const QKeySequence& tasto,
                                       DellaGiornata comando) {
    auto* azione = new QAction(testo, this);
    azione->setObjectName(nome);
    azione->setShortcut(tasto);
    azione->setShortcutContext(Qt::WidgetShortcut);
    vista_->addAction(azione);
    connect(azione, &QAction::triggered, this, [this, comando = std::move(comando)] {
        const QModelIndex giornata = vista_->currentIndex();
        if (giornata.isValid()) esegui_([&] { comando(postazione_, giornata.row()); });
    });
    return azione;
}

// Where the day can be made to end, and whether it does.
void PannelloGiornate::MostraFine() {
    const QModelIndex giornata = vista_->currentIndex();
    const Tappa* tappa = giornata.isValid() ? comandi::TappaFinale(postazione_, giornata.row()) : nullptr;
    fine_->setText(u"&Fine giornata"_s + (tappa == nullptr ? QString() : u" a "_s + InScritta(tappa->localita)));
    fine_->setChecked(tappa != nullptr && tappa->fineGiorno);
}

void PannelloGiornate::Mostra(const Postazione& /*postazione*/) {
    if (isVisible()) Aggiorna();
}

// Nothing is computed for a panel that nobody sees.
void PannelloGiornate::showEvent(QShowEvent* event) {
    Pannello::showEvent(event);
    Aggiorna();
}

void PannelloGiornate::Aggiorna() {
    const Documento& documento = postazione_.documento;
    if (mostrata_ == documento.VersioneCronovia()) return;
    mostrata_ = documento.VersioneCronovia();
    const Cronovia* cronovia = documento.Ultima();
    modello_.Mostra(cronovia, documento.Giornate());
    MostraScritta(*avviso_, cronovia != nullptr ? QString() : PercheVuoto(documento));
    MostraPieno(cronovia != nullptr);
}

// Without days there is a sentence, which takes no more room than it needs; the days get back what they had.
void PannelloGiornate::MostraPieno(bool pieno) {
    avviso_->setVisible(!pieno);
    vista_->setVisible(pieno);
    legenda_->setVisible(pieno);
    const bool appenaPieno = pieno && pieno_ != true;
    pieno_ = pieno;
    LimitaAltezza();
    if (!appenaPieno || !SopraOSotto()) return;
    widget()->layout()->invalidate();
    layout()->invalidate();
    qobject_cast<QMainWindow*>(parentWidget())
        ->resizeDocks({this}, {altezza_ > 0 ? altezza_ : sizeHint().height()}, Qt::Vertical);
}

// Whether the height is the panel's own: beside the grid it is that of the window.
bool PannelloGiornate::SopraOSotto() {
    const auto* finestra = qobject_cast<const QMainWindow*>(parentWidget());
    if (finestra == nullptr || isFloating()) return false;
    const Qt::DockWidgetArea dove = finestra->dockWidgetArea(this);
    return dove == Qt::TopDockWidgetArea || dove == Qt::BottomDockWidgetArea;
}

void PannelloGiornate::LimitaAltezza() {
    const bool basso = pieno_ == false && SopraOSotto();
    const int serve = std::max(widget()->layout()->totalHeightForWidth(widget()->width()), fontMetrics().height());
    widget()->setMaximumHeight(basso ? serve : QWIDGETSIZE_MAX);
}

void PannelloGiornate::resizeEvent(QResizeEvent* event) {
    Pannello::resizeEvent(event);
    if (pieno_ == true && isVisible() && SopraOSotto()) altezza_ = height();
    if (pieno_ == false && event->oldSize().width() != width()) LimitaAltezza();
}

void PannelloGiornate::SiRicorda(AspettoFinestra& aspetto) {
    aspetto.Segue(
        u"altezzaGiornate"_s, [this] { return altezza_; },
        [this](const QVariant& altezza) { altezza_ = altezza.toInt(); });
}

void PannelloGiornate::Segue(int giornata, int riga) {
    if (!isVisible()) return;
    Aggiorna();
    vista_->Segna(riga);
    vista_->VaiAllaGiornata(giornata);
}

}  // namespace cronovia
