// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/mappa/pannello_mappa.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>
#include <optional>
#include <utility>

#include "app/cartella_dati.h"
#include "app/comandi_luoghi.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"
#include "ui/mappa/frm_coordinate.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kAttesa = 120;  // milliseconds after the last change

// What is to be told of the map; empty when all places are known.
QString Mancanti(std::span<const Tappa> tappe, std::span<const PosizioneTappa> posizioni) {
    const QStringList nomi = LocalitaSenzaPosizione(tappe, posizioni);
    constexpr int kNominati = 3;
    if (nomi.isEmpty()) return {};
    const qsizetype resto = nomi.size() - kNominati;
    const QString altri = resto <= 0 ? QString() : resto == 1 ? u" e un'altra"_s : u" e altre %1"_s.arg(resto);
    return u"Non so dove si trova: %1%2. Vai alla tappa, poi tasto destro sulla mappa."_s.arg(
        nomi.mid(0, kNominati).join(u", "_s), altri);
}

}  // namespace

PannelloMappa::PannelloMappa(Postazione& postazione, Esegui esegui)
    : Pannello(Comando::Mappa),
      postazione_(postazione),
      esegui_(std::move(esegui)),
      vista_(new VistaMappa),
      avviso_(NuovaScritta()) {
    setObjectName(u"pannelloMappa"_s);
    auto* contenuto = new QWidget;
    auto* layout = Spaziato(new QVBoxLayout(contenuto), Spazi::Riquadro);
    avviso_->setObjectName(u"lblMappa"_s);
    avviso_->setWordWrap(true);
    layout->addWidget(NuoviPulsanti());
    layout->addWidget(vista_, 1);
    layout->addWidget(avviso_);
    setWidget(contenuto);
    vista_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(vista_, &QWidget::customContextMenuRequested, this, &PannelloMappa::ChiediDi);
    connect(vista_, &VistaMappa::RigaScelta, this, &PannelloMappa::RigaScelta);
    attesa_.setSingleShot(true);
    connect(&attesa_, &QTimer::timeout, this, [this] { Aggiorna(); });
}

QWidget* PannelloMappa::NuoviPulsanti() {
    auto* riga = new QWidget;
    auto* layout = Spaziato(new QHBoxLayout(riga), Spazi::Riga);
    const auto aggiungi = [&](const QString& nome, const QString& scritta, const QString& istruzione, auto azione) {
        auto* pulsante = new QToolButton;
        pulsante->setObjectName(nome);
        pulsante->setText(scritta);
        pulsante->setAccessibleName(istruzione);
        MostraIstruzione(*pulsante, istruzione);
        connect(pulsante, &QToolButton::clicked, vista_, azione);
        layout->addWidget(pulsante);
    };
    constexpr double kPasso = 1.5;
    aggiungi(u"mappaPiu"_s, u"+"_s, u"Ingrandisce la mappa"_s, [this] { vista_->Ingrandisci(kPasso); });
    aggiungi(u"mappaMeno"_s, u"−"_s, u"Rimpicciolisce la mappa"_s, [this] { vista_->Ingrandisci(1 / kPasso); });
    aggiungi(u"mappaViaggio"_s, u"Viaggio"_s, u"Mostra tutto il viaggio"_s, [this] { vista_->Adatta(); });
    aggiungi(u"mappaGiornata"_s, u"Giornata"_s, u"Mostra la giornata corrente"_s,
             [this] { vista_->AdattaAllaGiornata(); });
    layout->addStretch(1);
    return riga;
}

void PannelloMappa::Mostra(const Postazione& /*postazione*/) {
    if (isVisible()) attesa_.start(kAttesa);
}

void PannelloMappa::showEvent(QShowEvent* event) {
    Pannello::showEvent(event);
    if (std::exchange(primaVolta_, false)) vista_->MostraCoste(LeggiCoste(FileDelProgramma(u"coste.dat"_s)));
    Aggiorna();
}

void PannelloMappa::Aggiorna() {
    const Documento& documento = postazione_.documento;
    const RigheItinerario& righe = documento.Righe();
    std::vector<PosizioneTappa> posizioni(righe.size());
    postazione_.Prova([&] {
        posizioni = postazione_.luoghi.Posizioni(postazione_.sessione.Archivio(), righe, documento.Campi().nazione);
    });
    const bool altro = codice_ != documento.Codice();
    const bool altriLuoghi = luoghi_ != postazione_.luoghi.Versione();
    if (!altro && !altriLuoghi && versione_ == documento.VersioneCronovia()) return;
    codice_ = documento.Codice();
    luoghi_ = postazione_.luoghi.Versione();
    versione_ = documento.VersioneCronovia();
    const Cronovia* cronovia = documento.Ultima();
    const GiorniItinerario giorni =
        cronovia == nullptr ? GiorniItinerario() : GiorniItinerario(*cronovia, documento.Giornate(), righe);
    vista_->Mostra(ComponiMappa(righe, posizioni, documento.Giornate(), giorni), altro);
    const QString avviso = postazione_.luoghi.Repertorio().Disponibile()
                               ? Mancanti(righe, posizioni)
                               : u"Manca il file dei luoghi: la mappa conosce solo quelli che hai indicato tu."_s;
    MostraScritta(*avviso_, avviso);
    avviso_->setVisible(!avviso.isEmpty());
}

void PannelloMappa::Segue(int giornata, int riga) {
    if (!isVisible()) return;
    vista_->Segna(riga, giornata);
}

QString PannelloMappa::LocalitaSegnata() const {
    const RigheItinerario& righe = postazione_.documento.Righe();
    const int riga = vista_->RigaSegnata();
    return riga >= 1 && riga <= static_cast<int>(righe.size()) ? righe[static_cast<std::size_t>(riga) - 1].localita
                                                               : QString();
}

// What can be said of the place there, or of that of the current row. The map may be another one by the time that the
// person has chosen.
void PannelloMappa::ChiediDi(const QPoint& punto) {
    const LuogoSullaMappa* trovato = vista_->LuogoIn(QPointF(punto));
    const std::optional<LuogoSullaMappa> sotto = trovato != nullptr ? std::optional(*trovato) : std::nullopt;
    const LuogoSullaMappa* segnato = vista_->Mappa().Luogo(vista_->RigaSegnata());
    const LuogoSullaMappa* di = trovato != nullptr ? trovato : segnato;
    const bool confermato = di != nullptr && di->fonte == FontePosizione::Confermata;
    const QString localita = sotto ? sotto->nome : LocalitaSegnata();
    if (localita.isEmpty()) return;
    const QString nome = InScritta(localita);
    const Posizione qui = sotto ? Ricava(sotto->dove) : vista_->PosizioneIn(QPointF(punto));
    QMenu menu(this);
    const QAction* metti = nullptr;
    if (!sotto) metti = menu.addAction(u"Metti qui %1"_s.arg(nome));
    if (sotto && !sotto->Certo()) metti = menu.addAction(u"%1 si trova qui"_s.arg(nome));
    const QAction* scrivi = menu.addAction(u"Scrivi le coordinate di %1…"_s.arg(nome));
    const QAction* dimentica = confermato ? menu.addAction(u"Dimentica dove ho messo %1"_s.arg(nome)) : nullptr;
    const QAction* scelta = menu.exec(vista_->mapToGlobal(punto));
    if (scelta == nullptr) return;
    if (scelta == dimentica) {
        esegui_([&] { comandi::DimenticaLuogo(postazione_, localita); });
    } else if (scelta == metti) {
        esegui_([&] { comandi::MettiLuogo(postazione_, localita, qui); });
    } else if (scelta == scrivi) {
        const std::optional<Posizione> scritta = ChiediCoordinate(*window(), localita);
        if (scritta) esegui_([&] { comandi::MettiLuogo(postazione_, localita, *scritta); });
    }
    Aggiorna();
}

}  // namespace cronovia
