// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/tavolo_guida.h"

#include <algorithm>
#include <utility>

#include "calendar/testo.h"
#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

TavoloGuida::TavoloGuida(Archive& archive, Interaction& interaction, const QString& codiceMeta, Storia& storia)
    : archive_(archive), interaction_(interaction), codiceMeta_(codiceMeta), storia_(storia) {
    const ReadSnapshot momento(archive);
    tipi_ = CaricaTipiGuida(archive);
    CreaElenco();
    if (senzaTappe_) throw Failure(SenzaTappeMemorizzate().text);
    VaiAllaRiga(1);
}

// The list stays as it was when another window has taken the stages away.
void TavoloGuida::CreaElenco() {
    auto elenco = std::make_shared<std::vector<RigaGuida>>(ElencoDellaGuida(archive_, codiceMeta_));
    senzaTappe_ = elenco->empty();
    if (!senzaTappe_) elenco_ = std::move(elenco);
}

void TavoloGuida::VaiAllaRiga(int riga) {
    rigaCorrente_ = std::clamp(riga, 1, static_cast<int>(elenco_->size()));
    const std::optional<VoceGuida>& voce = Corrente().voce;
    CampiVoce campi = voce ? CampiDellaVoce(*voce) : CampiVoce();
    if (campi.tipo.isEmpty() && !tipi_.empty()) campi.tipo = tipi_.front().descrizione;
    Mostra(campi);
}

void TavoloGuida::Mostra(const CampiVoce& campi) {
    campi_ = campi;
    scritti_ = campi;
}

// The row of an entry, below that locality when it is shown there; the locality's own without one.
int TavoloGuida::RigaDi(const QString& localita, std::optional<std::int64_t> voce) const {
    int trovata = 0;
    for (std::size_t i = 0; i < elenco_->size(); ++i) {
        const RigaGuida& riga = (*elenco_)[i];
        const bool qui = riga.localita.compare(localita, Qt::CaseInsensitive) == 0;
        const bool cercata = voce ? riga.voce && riga.voce->id == *voce : !riga.voce && qui;
        if (cercata && (qui || trovata == 0)) trovata = static_cast<int>(i) + 1;
        if (cercata && qui) break;
    }
    if (trovata == 0) return voce ? RigaDi(localita, std::nullopt) : rigaCorrente_;
    return trovata;
}

int TavoloGuida::RigaDi(const RigaGuida& riga) const {
    return RigaDi(riga.localita, riga.voce ? std::optional(riga.voce->id) : std::nullopt);
}

// Whether another entry says the very same.
bool TavoloGuida::GiaPresente(const CampiVoce& campi) const {
    const RigaGuida& qui = Corrente();
    const int codice = CodiceTipoGuida(tipi_, campi.tipo);
    return std::any_of(elenco_->begin(), elenco_->end(), [&](const RigaGuida& riga) {
        if (!riga.voce || riga.localita != qui.localita || (qui.voce && qui.voce->id == riga.voce->id)) return false;
        return riga.voce->descrizione == campi.descrizione.trimmed() && ValoreNumerico(riga.voce->codice) == codice &&
               riga.voce->tempo == Durata{0, campi.ore, campi.minuti};
    });
}

// The fields come by value: they may be those of the table, which change here.
bool TavoloGuida::SalvaRiga(CampiVoce campi) {
    if (const auto difetto = DifettoDellaVoce(tipi_, campi)) {
        interaction_.Show({difetto->messaggio, {}, Icon::Exclamation});
        return false;
    }
    if (GiaPresente(campi)) {
        interaction_.Show({u"L'annotazione «%1» di %2 c'è già, con la stessa tipologia e lo stesso tempo."_s.arg(
                               campi.descrizione.trimmed(), Corrente().localita),
                           {},
                           Icon::Exclamation});
        return false;
    }
    const RigaGuida riga = Corrente();
    ModificaGuida modifica = SalvaVoce(archive_, riga.localita, riga.voce, tipi_, campi);
    const bool persa = riga.voce && !modifica.prima;
    const QString nome = modifica.prima ? u"modifica di «%1»"_s : u"inserimento di «%1»"_s;
    const auto voce = riga.voce ? std::optional(modifica.dopo->id) : std::nullopt;
    storia_.Ricorda(PassoDi(nome.arg(campi.descrizione.trimmed()), std::move(modifica)));
    CreaElenco();
    // From a locality's row one goes on adding; an entry is followed to where it is listed now.
    VaiAllaRiga(RigaDi(riga.localita, voce));
    if (!riga.voce) {
        CampiVoce prossima = std::move(campi);
        prossima.descrizione.clear();
        prossima.tipo = TipoComeInElenco(tipi_, prossima.tipo);
        Mostra(prossima);
    }
    if (persa) {
        interaction_.Show(
            {u"L'annotazione mostrata era stata cambiata o cancellata nel frattempo:\n"
             "i dati sono stati inseriti come nuova annotazione."_s,
             {},
             Icon::Information});
    }
    return true;
}

void TavoloGuida::SalvaScritti() {
    if (!GiaPresente(scritti_)) SalvaVoce(archive_, Corrente().localita, Corrente().voce, tipi_, scritti_);
    campi_ = scritti_;
}

void TavoloGuida::CancellaRiga() {
    const RigaGuida riga = Corrente();
    if (!riga.voce) return;
    std::optional<ModificaGuida> modifica = CancellaVoce(archive_, NamePattern::ForName(riga.localita), *riga.voce);
    if (modifica)
        storia_.Ricorda(PassoDi(u"cancellazione di «%1»"_s.arg(riga.voce->descrizione), std::move(*modifica)));
    CreaElenco();
    VaiAllaRiga(rigaCorrente_);
    // Never over to another locality, where the next entry would be typed by mistake.
    if (Corrente().localita != riga.localita) VaiAllaRiga(rigaCorrente_ - 1);
}

Passo TavoloGuida::PassoDi(const QString& nome, ModificaGuida modifica) {
    return {nome,
            Ambito::Guida,
            [this, modifica = std::move(modifica)](const Passo& passo) {
                return std::optional(PassoDi(passo.nome, Disfa(passo.nome, modifica)));
            },
            {}};
}

// Takes a change back and shows the row where it was; the change that this was.
ModificaGuida TavoloGuida::Disfa(const QString& nome, const ModificaGuida& modifica) {
    std::optional<ModificaGuida> fatta = cronovia::Annulla(archive_, modifica);
    CreaElenco();
    if (!fatta) {
        VaiAllaRiga(rigaCorrente_);
        throw PassoPerduto(
            u"Impossibile: l'annotazione è stata cambiata o cancellata nel frattempo\n(%1)."_s.arg(nome));
    }
    VaiAllaRiga(RigaDi((fatta->dopo ? *fatta->dopo : *fatta->prima)[guida::Localita],
                       fatta->dopo ? std::optional(fatta->dopo->id) : std::nullopt));
    return std::move(*fatta);
}

}  // namespace cronovia
