#include "ui/viaggio/frm_bottoni.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<TestiPulsante, kComandi> kTestiMeta = {{
    {u"cmdNuovo", u"&Nuovo", u"Inserisce una nuova mèta"},
    {u"cmdRicerca", u"Ricerca mè&ta", u"Cerca una mèta tra quelle memorizzate"},
    {u"cmdSalva", u"Sal&va", u"Salva i dati della mèta"},
    {u"cmdCancMeta", u"Canc.&mèta", u"Cancella la mèta con il suo itinerario"},
    {u"cmdCalcola", u"&Calcola", u"Calcola la cronovia del viaggio"},
    {u"cmdStampa", u"&Stampa", u"Stampa la cronovia"},
    {u"cmdItinerario", u"&Itinerario", u"Inserisce o modifica le tappe dell'itinerario"},
    {u"cmdGuidaCitta", u"&Guida città", u"Inserisce o modifica la guida delle città"},
    {u"cmdCancItin", u"C&anc.Itin.", u"Cancella tutto l'itinerario della mèta"},
    {u"cmdEsce", u"&Esce", u"Esce dal form"},
    {u"cmdImport", u"Im&port", u"Importa mète da un file di scambio"},
    {u"cmdExport", u"E&xport", u"Esporta mète su un file di scambio"},
}};

// The order on screen: the trip, its itinerary, the schedule, files, the end.
constexpr std::array<Comando, kComandi> kDisposizioneMeta = {
    Comando::Nuovo,      Comando::Ricerca, Comando::Salva,  Comando::CancMeta, Comando::Itinerario, Comando::CancItin,
    Comando::GuidaCitta, Comando::Calcola, Comando::Stampa, Comando::Import,   Comando::Export,     Comando::Esce};

}  // namespace

FrmBottoni::FrmBottoni(QWidget* parent)
    : QFrame(parent),
      cmdConverte_(NuovoPulsante({u"cmdConverte", u"Converte", u"Recupera i dati della versione precedente"})) {
    setObjectName(u"frmBottoni"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(3);
    layout->addWidget(cmdConverte_, 0, Qt::AlignRight);
    auto* riga = new QHBoxLayout;
    layout->addLayout(riga);
    for (const Comando comando : kDisposizioneMeta) {
        QPushButton* pulsante = NuovoPulsante(kTestiMeta[static_cast<std::size_t>(comando)]);
        // All alike, and together no wider than a small window.
        pulsante->setMinimumWidth(pulsante->fontMetrics().horizontalAdvance(pulsante->text()));
        pulsante->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        connect(pulsante, &QPushButton::clicked, this, [this, comando] { Q_EMIT Premuto(comando); });
        pulsanti_[static_cast<std::size_t>(comando)] = pulsante;
        riga->addWidget(pulsante, 1);
    }
    connect(cmdConverte_, &QPushButton::clicked, this, &FrmBottoni::Converte);
}

void FrmBottoni::Applica(const StatoComandi& stato, bool daSbloccare, bool converte) {
    cmdConverte_->setVisible(converte);
    cmdConverte_->setEnabled(converte);
    for (std::size_t i = 0; i < kComandi; ++i) pulsanti_[i]->setEnabled(stato.comandi[i]);
    Pulsante(Comando::Calcola).setText(daSbloccare ? u"&Sblocca"_s : u"&Calcola"_s);
    // Who took the key away may have left the text.
    Pulsante(Comando::Calcola).setShortcut(QKeySequence::mnemonic(Pulsante(Comando::Calcola).text()));
    // While Alt+S unlocks, it does not print as well.
    Pulsante(Comando::Stampa)
        .setShortcut(daSbloccare ? QKeySequence() : QKeySequence::mnemonic(Pulsante(Comando::Stampa).text()));
    Pulsante(Comando::Esce).setText(stato.stop ? u"&Stop"_s : u"&Esce"_s);
    Pulsante(Comando::Esce).setToolTip(stato.escEsce ? u"Esce dal form (Esc attivo)"_s : u"Esce dal form"_s);
}

}  // namespace cronovia
