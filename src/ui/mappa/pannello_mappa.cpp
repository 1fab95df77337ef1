// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/mappa/pannello_mappa.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "app/cartella_dati.h"
#include "app/comandi_luoghi.h"
#include "ui/comuni/testo_mostrato.h"
#include "ui/mappa/frm_coordinate.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kAttesa = 120;  // milliseconds after the last change

// What is to be told of the map; empty when all places are known.
QString Mancanti(std::span<const Tappa> tappe, std::span<const PosizioneTappa> posizioni) {
    QStringList nomi;
    for (std::size_t i = 0; i < tappe.size(); ++i) {
        if (posizioni[i].fonte == FontePosizione::Sconosciuta && !tappe[i].localita.isEmpty())
            nomi += tappe[i].localita;
    }
    nomi.removeDuplicates();
    constexpr int kNominati = 3;
    if (nomi.isEmpty()) return {};
    const QString altri = nomi.size() > kNominati ? u" e altre %1"_s.arg(nomi.size() - kNominati) : QString();
    return u"Non so dove si trova: %1%2. Vai alla tappa, poi tasto destro sulla mappa."_s.arg(
        nomi.mid(0, kNominati).join(u", "_s), altri);
}

}  // namespace

PannelloMappa::PannelloMappa(Postazione& postazione, Esegui esegui, QWidget* parent)
    : Pannello(u"Mappa"_s, parent),
      postazione_(postazione),
      esegui_(std::move(esegui)),
      gazzettino_(FileDelProgramma(u"luoghi.dat"_s)),
      vista_(new VistaMappa),
      avviso_(NuovaScritta()) {
    setObjectName(u"pannelloMappa"_s);
    toggleViewAction()->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_M));
    auto* contenuto = new QWidget;
    auto* layout = new QVBoxLayout(contenuto);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
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
    connect(&attesa_, &QTimer::timeout, this, [this] { Aggiorna(false); });
}

QWidget* PannelloMappa::NuoviPulsanti() {
    auto* riga = new QWidget;
    auto* layout = new QHBoxLayout(riga);
    layout->setContentsMargins(0, 0, 0, 0);
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
    Aggiorna(false);
}

// Places are looked up again only when the way is another one; the days when the schedule is.
void PannelloMappa::Aggiorna(bool tutto) {
    const Documento& documento = postazione_.documento;
    const bool altro = codice_ != documento.Codice();
    const bool stessaVia = std::equal(tappe_.begin(), tappe_.end(), documento.Righe().begin(), documento.Righe().end());
    if (!tutto && !altro && stessaVia && versione_ == documento.VersioneCronovia()) return;
    if (tutto || altro || !stessaVia) {
        tappe_ = documento.Righe();
        codice_ = documento.Codice();
        const bool riuscita = postazione_.Prova([&] {
            posizioni_ =
                PosizioniDelViaggio(postazione_.sessione.Archivio(), gazzettino_, tappe_, documento.Campi().nazione);
        });
        if (!riuscita) posizioni_.assign(tappe_.size(), {});
    }
    versione_ = documento.VersioneCronovia();
    const Cronovia* cronovia = documento.Ultima();
    vista_->Mostra(cronovia == nullptr ? ComponiMappa(tappe_, posizioni_, {}, {})
                                       : ComponiMappa(tappe_, posizioni_, documento.Giornate(),
                                                      {*cronovia, documento.Giornate(), tappe_}),
                   altro);
    const QString avviso = gazzettino_.Disponibile() ? Mancanti(tappe_, posizioni_)
                                                     : u"Manca il file dei luoghi: la mappa conosce solo quelli che "
                                                       "hai indicato tu."_s;
    MostraScritta(*avviso_, avviso);
    avviso_->setVisible(!avviso.isEmpty());
}

void PannelloMappa::Segue(int giornata, int riga) {
    if (!isVisible()) return;
    vista_->Segna(riga, giornata);
}

QString PannelloMappa::LocalitaSegnata() const {
    const int riga = vista_->RigaSegnata();
    return riga >= 1 && riga <= static_cast<int>(tappe_.size()) ? tappe_[static_cast<std::size_t>(riga) - 1].localita
                                                                : QString();
}

bool PannelloMappa::Confermata(const QString& localita) const {
    const auto tappa =
        std::find_if(tappe_.begin(), tappe_.end(), [&](const Tappa& t) { return t.localita == localita; });
    return tappa != tappe_.end() &&
           posizioni_[static_cast<std::size_t>(tappa - tappe_.begin())].fonte == FontePosizione::Confermata;
}

// What can be said of the place of the current row.
void PannelloMappa::ChiediDi(const QPoint& punto) {
    const LuogoSullaMappa* sotto = vista_->LuogoIn(QPointF(punto));
    const QString localita = sotto != nullptr ? sotto->nome : LocalitaSegnata();
    if (localita.isEmpty()) return;
    const QString nome = InScritta(localita);
    const Posizione qui = vista_->PosizioneIn(QPointF(punto));
    QMenu menu(this);
    const QAction* metti = sotto == nullptr ? menu.addAction(u"Metti qui %1"_s.arg(nome)) : nullptr;
    const QAction* conferma =
        sotto != nullptr && !sotto->certo ? menu.addAction(u"%1 si trova qui"_s.arg(nome)) : nullptr;
    const QAction* scrivi = menu.addAction(u"Scrivi le coordinate di %1…"_s.arg(nome));
    const QAction* dimentica =
        Confermata(localita) ? menu.addAction(u"Dimentica dove ho messo %1"_s.arg(nome)) : nullptr;
    const QAction* scelta = menu.exec(vista_->mapToGlobal(punto));
    if (scelta == nullptr) return;
    if (scelta == metti || scelta == conferma) {
        esegui_([&] { comandi::MettiLuogo(postazione_, localita, sotto != nullptr ? Ricava(sotto->dove) : qui); });
    } else if (scelta == scrivi) {
        const std::optional<Posizione> scritta = ChiediCoordinate(*window(), localita);
        if (!scritta) return;
        esegui_([&] { comandi::MettiLuogo(postazione_, localita, *scritta); });
    } else if (scelta == dimentica) {
        esegui_([&] { comandi::DimenticaLuogo(postazione_, localita); });
    }
    Aggiorna(true);
}

}  // namespace cronovia
