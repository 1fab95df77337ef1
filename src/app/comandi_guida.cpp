// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comandi_guida.h"

#include <QFileInfo>
#include <algorithm>
#include <variant>

#include "app/comandi_scambio.h"
#include "app/niente_perso.h"

namespace cronovia::comandi {

using namespace Qt::StringLiterals;

namespace {

// What would become of the places of a file; nothing when the person stopped it, or knows why it cannot be read.
std::optional<std::vector<SostaProposta>> SosteDelFile(Postazione& p, const QString& file) {
    std::variant<std::vector<SostaLetta>, TabellaDaSpiegare> letto;
    if (!p.MentreCorre([&] { letto = LeggiOChiediSoste(file); })) return std::nullopt;
    std::optional<PostoColonne> colonne;
    if (const auto* tabella = std::get_if<TabellaDaSpiegare>(&letto)) {
        colonne = p.volti.chiediColonne(*tabella);
        if (!colonne) return std::nullopt;
    }
    std::optional<std::vector<SostaProposta>> soste;
    const bool lette = p.MentreCorre([&] {
        if (colonne) letto = LeggiSoste(file, colonne);
        soste = ProponiSoste(p.sessione.Archivio(), p.luoghi.Repertorio(), std::get<std::vector<SostaLetta>>(letto),
                             p.volti.avanzamento);
    });
    if (lette && !soste) p.Mostra(u"Lettura delle soste interrotta."_s);
    return soste;
}

}  // namespace

void GuidaCitta(Postazione& p) {
    p.Prova([&] {
        if (LocalitaDellItinerario(p.sessione.Archivio(), p.documento.Codice()).nomi.empty()) {
            p.volti.interazione.Show(SenzaTappeMemorizzate());
            return;
        }
        p.schermata = schermata::Guida{std::make_unique<TavoloGuida>(p.sessione.Archivio(), p.volti.interazione,
                                                                     p.documento.Codice(), p.documento.Modifiche())};
    });
}

void SullaGuida(Postazione& p, const std::function<void(TavoloGuida&)>& comando) {
    auto* guida = p.Su<schermata::Guida>();
    if (guida == nullptr) return;
    p.Prova([&] { comando(*guida->tavolo); });
    if (!guida->tavolo->SenzaTappe()) return;
    p.volti.interazione.Show(SenzaTappeMemorizzate());
    FineGuida(p);
}

void VaiAllaRigaGuida(Postazione& p, int riga) {
    auto* guida = p.Su<schermata::Guida>();
    if (guida == nullptr) return;
    TavoloGuida& tavolo = *guida->tavolo;
    const auto ultima = static_cast<int>(tavolo.Elenco()->size());
    const RigaGuida meta = (*tavolo.Elenco())[static_cast<std::size_t>(std::clamp(riga, 1, ultima) - 1)];
    guida->elencoLocalita = false;
    if (!VoceNonPersa(p)) return;
    SullaGuida(p, [&](TavoloGuida& t) { t.VaiAllaRiga(t.RigaDi(meta)); });
}

void SalvaRigaGuida(Postazione& p) {
    SullaGuida(p, [](TavoloGuida& tavolo) { tavolo.SalvaRiga(tavolo.Scritti()); });
}

void CercaInGuida(Postazione& p) {
    if (auto* guida = p.Su<schermata::Guida>()) guida->elencoLocalita = true;
}

void ChiudiElencoGuida(Postazione& p) {
    if (auto* guida = p.Su<schermata::Guida>()) guida->elencoLocalita = false;
}

void StampaGuida(Postazione& p) {
    if (auto* guida = p.Su<schermata::Guida>()) guida->stampa = schermata::PassoStampa::Scelte;
}

void CancellaRigaGuida(Postazione& p) {
    if (VoceNonPersa(p)) SullaGuida(p, [](TavoloGuida& tavolo) { tavolo.CancellaRiga(); });
}

void FineGuida(Postazione& p) {
    if (!VoceNonPersa(p)) return;
    p.Prova([&] {
        if (!p.documento.Modificato()) return p.VaiAlViaggio();
        p.documento.RileggiVisite();  // what is typed in the trip's fields stays
        p.MettiSchermoDelViaggio();
    });
}

void ImportaSoste(Postazione& p) {
    const QString file = p.volti.scegliFile(FileChiesto::Soste);
    if (file.isEmpty()) return;
    auto soste = SosteDelFile(p, file);
    if (!soste) return;
    p.volti.mostra();
    if (!p.volti.confermaSoste(*soste) || SosteNuove(*soste) == 0) return;
    TracciaImport traccia;
    if (!p.MentreScrive({}, [&] { traccia = AggiungiSoste(p.sessione.Archivio(), *soste); })) return;
    const Message fine{ConteggioSoste(*soste, true), {}, Icon::Information};
    if (SosteNuove(*soste) == 0) return p.volti.interazione.Show(fine);
    Storia& storia = p.documento.Modifiche();
    storia.Ricorda(PassoImport(p, QFileInfo(file).fileName(), traccia, p.documento.Codice()));
    p.volti.mostra();
    if (p.volti.interazione.ShowUndoable(fine, u"Annulla importazione"_s)) {
        p.Prova([&] { storia.Annulla(Ambito::Archivio); });
    }
}

}  // namespace cronovia::comandi
