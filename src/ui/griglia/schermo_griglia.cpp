// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/griglia/schermo_griglia.h"

#include <algorithm>
#include <utility>

#include "app/comandi_inserimento.h"
#include "app/comandi_righe.h"

namespace cronovia {

SchermoGriglia::SchermoGriglia(Postazione& postazione, Esegui esegui)
    : postazione_(postazione), esegui_(std::move(esegui)), vista_(new VistaGriglia) {
    vista_->setContextMenuPolicy(Qt::ActionsContextMenu);
    vista_->setModel(&modello_);
    Collega();
}

void SchermoGriglia::Collega() {
    connect(vista_, &VistaGriglia::Spostamento, this, [this](int righe) {
        esegui_([&] { comandi::SelezionaRiga(postazione_, postazione_.documento.RigaCorrente() + righe); });
        vista_->setFocus();
    });
    connect(vista_, &VistaGriglia::Estensione, this, [this](int righe) {
        esegui_([&] { comandi::SceglieFino(postazione_, postazione_.documento.RigaCorrente() + righe); });
        vista_->setFocus();
    });
    connect(vista_, &VistaGriglia::SceltaFino, this,
            [this](int riga) { esegui_([&] { comandi::SceglieFino(postazione_, riga + 1); }); });
    connect(vista_, &VistaGriglia::Piega, this, &SchermoGriglia::Piega);
    auto* trascina = new Trascinamento(*vista_, [this](const QPoint& punto) { return Presa(punto); });
    connect(trascina, &Trascinamento::Lasciata, this, &SchermoGriglia::Lasciata);
    // However a row became the current one, commands act on it.
    connect(vista_, &VistaGriglia::RigaCorrente, this, [this](int riga) {
        DiceLaCorrente();
        if (postazione_.documento.Calcolata() || postazione_.Su<schermata::Guida>()) return;
        const auto vai = [this, riga] { esegui_([&] { comandi::SelezionaRiga(postazione_, riga + 1); }); };
        QualcosaDaChiedere() ? vista_->DopoIlMouse(vai) : vai();
    });
}

bool SchermoGriglia::QualcosaDaChiedere() const {
    const auto* inserimento = postazione_.Su<schermata::Inserimento>();
    return inserimento != nullptr && inserimento->campi != inserimento->letti;
}

// Where stages can be changed; the rows keep the keyboard.
void SchermoGriglia::Cambia(const std::function<void()>& comando) {
    if (!postazione_.Su<schermata::Inserimento>() && !postazione_.Su<schermata::Cronovia>()) return;
    esegui_(comando);
    vista_->setFocus();
}

// In the itinerary the rows that are selected, when the press is on them; in the schedule the day of a line.
std::optional<Trascinata> SchermoGriglia::Presa(const QPoint& punto) const {
    const QModelIndex index = vista_->indexAt(punto);
    if (!index.isValid()) return std::nullopt;
    if (postazione_.Su<schermata::Cronovia>()) {
        const std::optional<int> giornata = modello_.Linea(index.row());
        return giornata ? std::optional(Trascinata{giornata, {}}) : std::nullopt;
    }
    if (!postazione_.Su<schermata::Inserimento>()) return std::nullopt;
    const int riga = index.row() + 1;
    const Tratto scelte = comandi::RigheScelte(postazione_);
    if (riga > NumeroTappe(postazione_.documento.Righe())) return std::nullopt;
    return Trascinata{std::nullopt, scelte.da <= riga && riga <= scelte.a ? scelte : Tratto{riga, riga}};
}

void SchermoGriglia::Lasciata(const Trascinata& trascinata, int prima) {
    if (postazione_.Su<schermata::Cronovia>()) {
        if (!trascinata.giornata) return;
        const RigheMostrate& mostrate = modello_.Mostrate();
        const int altra = prima >= mostrate.Numero() ? mostrate.Giornate()
                          : mostrate.Linea(prima)    ? mostrate.GiornataDi(prima)
                                                     : mostrate.GiornataDi(prima) + 1;
        return Cambia([&] { comandi::SpostaGiornataPrimaDi(postazione_, *trascinata.giornata, altra); });
    }
    Tratto righe = trascinata.righe;
    if (trascinata.giornata) {
        const auto tappe = Giorni().Righe(*trascinata.giornata);
        if (!tappe) return;
        righe = {tappe->first, tappe->second};
    }
    Cambia([&] { comandi::SpostaPrimaDi(postazione_, righe, prima + 1); });
}

void SchermoGriglia::Mostra() {
    const Documento& documento = postazione_.documento;
    const auto& cronovia = documento.Calcolata();
    vista_->Mostra(cronovia ? VistaGriglia::Righe::Cronovia : VistaGriglia::Righe::Tappe, modello_);
    if (cronovia && mostrata_ != documento.VersioneCronovia()) {
        const bool prima = modello_.Mostrate().Numero() == 0;
        const int riga = prima ? 0 : vista_->currentIndex().row();
        modello_.MostraCronovia(*cronovia, documento.Giornate());
        DistendiRighe();
        vista_->SelezionaRiga(std::min(riga, modello_.rowCount() - 1));
        mostrata_ = documento.VersioneCronovia();
    } else if (!cronovia) {
        vista_->clearSpans();
        modello_.MostraItinerario(documento.Righe(), documento.Riepilogo(), kRigheMinimeGriglia);
        SegnaGiorni();
        DistendiDaIndicare();
    }
    if (!cronovia) mostrata_.reset();
    vista_->NascondiColonna(static_cast<int>(Colonna::Guida), cronovia.has_value());
    if (!cronovia) {
        const Tratto scelte = comandi::RigheScelte(postazione_);
        vista_->SelezionaRighe(scelte.da - 1, scelte.a - 1, documento.RigaCorrente() - 1);
    }
    const auto* inserimento = postazione_.Su<schermata::Inserimento>();
    const bool conElenco =
        postazione_.Su<schermata::ElencoMete>() || (inserimento != nullptr && inserimento->elencoTappe);
    vista_->setEnabled(!conElenco && !postazione_.InCorsa());
    DiceLaCorrente();
}

// What was computed is read here, and a trip that one comes back to.
bool SchermoGriglia::FuocoDopo(Comando /*comando*/, bool appenaAperto) {
    const bool davanti = postazione_.Su<schermata::Viaggio>() || postazione_.Su<schermata::Cronovia>();
    if (!appenaAperto || !davanti || postazione_.SenzaMete()) return false;
    vista_->setFocus();
    return true;
}

// Worked out when it is asked for.
const GiorniItinerario& SchermoGriglia::Giorni() {
    const Documento& documento = postazione_.documento;
    if (collegata_ != documento.VersioneCronovia()) {
        const Cronovia* cronovia = documento.Ultima();
        giorni_ = cronovia == nullptr ? GiorniItinerario()
                                      : GiorniItinerario(*cronovia, documento.Giornate(), documento.Righe());
        collegata_ = documento.VersioneCronovia();
    }
    return giorni_;
}

void SchermoGriglia::SegnaGiorni() { modello_.SegnaGiorni(Giorni().Cambi()); }

void SchermoGriglia::DiceLaCorrente() {
    const int griglia = vista_->currentIndex().row();
    const RigheMostrate& mostrate = modello_.Mostrate();
    if (griglia < 0 || postazione_.Su<schermata::Guida>()) return;
    if (!postazione_.documento.Calcolata()) {
        const int giornata = Giorni().GiornataDi(griglia + 1).value_or(-1);
        Q_EMIT Corrente(giornata, -1);
        Q_EMIT TappaCorrente(giornata, griglia + 1);
    } else if (griglia < mostrate.Numero()) {
        if (auto* sopra = postazione_.Su<schermata::Cronovia>()) sopra->giornata = mostrate.GiornataDi(griglia);
        const std::optional<int> riga = mostrate.Riga(griglia);
        const auto& righe = postazione_.documento.Calcolata()->righe;
        Q_EMIT Corrente(mostrate.GiornataDi(griglia), riga.value_or(-1));
        Q_EMIT TappaCorrente(mostrate.GiornataDi(griglia),
                             riga ? Giorni().Riga(righe[static_cast<std::size_t>(*riga)].tappa) : 0);
    }
}

void SchermoGriglia::VaiAllaRiga(int riga) {
    const Cronovia* cronovia = postazione_.documento.Ultima();
    if (cronovia == nullptr || postazione_.Su<schermata::Guida>()) return;
    if (!postazione_.documento.Calcolata()) {
        return VaiAllaTappa(Giorni().Riga(cronovia->righe[static_cast<std::size_t>(riga)].tappa));
    }
    const RigheMostrate& mostrate = modello_.Mostrate();
    if (modello_.Linea(mostrate.DoveRiga(riga))) Piega(mostrate.DoveRiga(riga), false);
    vista_->SelezionaRiga(mostrate.DoveRiga(riga));
    DiceLaCorrente();
}

void SchermoGriglia::VaiAllaGiornata(int giornata) {
    if (postazione_.documento.Ultima() == nullptr || postazione_.Su<schermata::Guida>()) return;
    if (postazione_.documento.Calcolata()) {
        const int linea = modello_.Mostrate().DoveLinea(giornata);
        vista_->SelezionaRiga(linea);
        vista_->scrollTo(modello_.index(linea, 0), QAbstractItemView::PositionAtTop);  // the day's rows are seen
        DiceLaCorrente();
    } else if (const auto righe = Giorni().Righe(giornata)) {
        VaiAllaTappa(righe->first);
    }
}

void SchermoGriglia::VaiAllaTappa(int riga) {
    if (postazione_.Su<schermata::Guida>()) return;
    if (const auto& cronovia = postazione_.documento.Calcolata()) {
        const auto qui = std::find_if(cronovia->righe.begin(), cronovia->righe.end(), [&](const RigaCronovia& r) {
            return !r.verso && Giorni().Riga(r.tappa) == riga;
        });
        if (qui != cronovia->righe.end()) VaiAllaRiga(static_cast<int>(qui - cronovia->righe.begin()));
        return;
    }
    esegui_([&] { comandi::SelezionaRiga(postazione_, riga); });
}

// A line runs over all columns. Guide entries have long texts and no road: theirs runs over the columns of the road.
void SchermoGriglia::DistendiRighe() {
    constexpr int kPrima = static_cast<int>(Colonna::Tappa);
    constexpr int kColonneDistese = static_cast<int>(Colonna::Sosta) - kPrima;
    vista_->clearSpans();
    for (int riga = 0; riga < modello_.rowCount(); ++riga) {
        if (modello_.Linea(riga)) {
            vista_->setSpan(riga, 0, 1, modello_.columnCount());
        } else if (modello_.SegnoDellaRiga(riga) == Segno::Guida) {
            vista_->setSpan(riga, kPrima, 1, kColonneDistese);
        }
    }
}

// What is to be told takes the columns of what follows from it.
void SchermoGriglia::DistendiDaIndicare() {
    constexpr int kPrima = static_cast<int>(Colonna::Km);
    constexpr int kColonneDistese = static_cast<int>(Colonna::Sosta) - kPrima;
    const RigheItinerario& righe = postazione_.documento.Righe();
    for (std::size_t i = 0; i < righe.size(); ++i) {
        if (righe[i].kmDaIndicare) vista_->setSpan(static_cast<int>(i), kPrima, 1, kColonneDistese);
    }
}

// A row is not closed by itself: from it one first comes to the line of its day.
void SchermoGriglia::Piega(int riga, std::optional<bool> chiusa) {
    const RigheMostrate& mostrate = modello_.Mostrate();
    const int giornata = mostrate.GiornataDi(riga);
    if (!modello_.Linea(riga)) return vista_->SelezionaRiga(mostrate.DoveLinea(giornata));
    modello_.Chiudi(giornata, chiusa.value_or(!mostrate.Chiusa(giornata)));
    DistendiRighe();
}

}  // namespace cronovia
