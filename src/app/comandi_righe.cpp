// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comandi_righe.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "app/comandi_cronovia.h"
#include "app/comandi_esporta.h"
#include "app/comandi_inserimento.h"
#include "app/niente_perso.h"
#include "itinerary/appunti.h"
#include "itinerary/spostamenti.h"
#include "schedule/giorni_itinerario.h"

namespace cronovia::comandi {

using namespace Qt::StringLiterals;

namespace {

QString NomeDi(const RigheItinerario& righe, Tratto tratto) {
    QStringList nomi;
    for (int riga = tratto.da; riga <= std::min(tratto.a, static_cast<int>(righe.size())); ++riga) {
        const QString& localita = righe[static_cast<std::size_t>(riga - 1)].localita;
        if (!localita.isEmpty()) nomi += localita;
    }
    if (nomi.isEmpty()) return u"righe vuote"_s;
    return nomi.size() == 1 ? nomi.first() : u"%1 tappe"_s.arg(nomi.size());
}

bool ConLuogo(const Tappa& tappa) { return !tappa.localita.trimmed().isEmpty(); }

GiorniItinerario Giorni(const Postazione& p) {
    const Cronovia* cronovia = p.documento.Ultima();
    if (cronovia == nullptr) return {};
    return {*cronovia, p.documento.Giornate(), p.documento.Righe()};
}

// Where stages can be changed.
bool SiPuoCambiare(const Postazione& p) { return p.Su<schermata::Inserimento>() || p.Su<schermata::Cronovia>(); }

// The stages that are reached on a day; tells when there is none to do anything with.
std::optional<Tratto> TappeDelGiorno(Postazione& p, int giornata) {
    if (!SiPuoCambiare(p)) {
        p.Mostra(u"Le giornate si cambiano dalla cronovia o dall'inserimento dell'itinerario."_s);
        return std::nullopt;
    }
    const auto righe = Giorni(p).Righe(giornata);
    if (!righe) p.Mostra(u"Nel giorno %1 non si raggiunge nessuna tappa."_s.arg(giornata + 1));
    return righe ? std::optional(Tratto{righe->first, righe->second}) : std::nullopt;
}

// What a command without a day of its own is about.
std::optional<Tratto> Scelto(Postazione& p) {
    if (const auto* cronovia = p.Su<schermata::Cronovia>()) return TappeDelGiorno(p, cronovia->giornata);
    return RigheScelte(p);
}

QString NomeDelGiorno(int giornata) { return u"del giorno %1"_s.arg(giornata + 1); }

// The next day that has stages, above or below.
std::optional<Tratto> GiornoVicino(const Postazione& p, int giornata, int passo) {
    const GiorniItinerario giorni = Giorni(p);
    const auto numero = static_cast<int>(p.documento.Giornate().size());
    for (int altra = giornata + passo; altra >= 0 && altra < numero; altra += passo) {
        if (const auto righe = giorni.Righe(altra)) return Tratto{righe->first, righe->second};
    }
    return std::nullopt;
}

void Sposta(Postazione& p, int passo) {
    if (!TappaNonPersa(p)) return;
    if (const auto* cronovia = p.Su<schermata::Cronovia>()) return SpostaGiornata(p, cronovia->giornata, passo);
    const Tratto scelte = RigheScelte(p);
    const int dove = passo < 0 ? scelte.da - 1 : scelte.a + 2;
    if (dove >= 1 && scelte.a + std::max(passo, 0) <= NumeroTappe(p.documento.Righe())) SpostaPrimaDi(p, scelte, dove);
}

void Duplica(Postazione& p, const std::optional<Tratto>& tratto) {
    const RigheItinerario& righe = p.documento.Righe();
    if (tratto) ConcludiSpostamento(p, u"duplicazione di "_s + NomeDi(righe, *tratto), DuplicaRighe(righe, *tratto));
}

void Toglie(Postazione& p, const std::optional<Tratto>& tratto) {
    const RigheItinerario& righe = p.documento.Righe();
    if (tratto) ConcludiSpostamento(p, u"cancellazione di "_s + NomeDi(righe, *tratto), TogliRighe(righe, *tratto));
}

}  // namespace

void ConcludiSpostamento(Postazione& p, const QString& nome, EsitoSpostamento esito, CambiPosizioni posizioni) {
    if (!Modifica(p, nome, std::move(esito.righe), esito.tratto.a, std::move(posizioni))) return;
    if (auto* inserimento = p.Su<schermata::Inserimento>();
        inserimento != nullptr && esito.tratto.da < esito.tratto.a) {
        inserimento->ancora = esito.tratto.da;
    }
    RicalcolaSulPosto(p);
}

Tratto RigheScelte(const Postazione& p) {
    const int riga = p.documento.RigaCorrente();
    const auto* inserimento = p.Su<schermata::Inserimento>();
    const int ancora = inserimento == nullptr || inserimento->ancora == 0 ? riga : inserimento->ancora;
    return {std::min(ancora, riga), std::max(ancora, riga)};
}

void SceglieFino(Postazione& p, int riga) {
    const auto* prima = p.Su<schermata::Inserimento>();
    const int ancora = prima == nullptr || prima->ancora == 0 ? p.documento.RigaCorrente() : prima->ancora;
    if (!SelezionaRiga(p, riga)) return;
    if (auto* inserimento = p.Su<schermata::Inserimento>()) inserimento->ancora = ancora;
}

void SpostaSu(Postazione& p) { Sposta(p, -1); }
void SpostaGiu(Postazione& p) { Sposta(p, 1); }

void DuplicaScelte(Postazione& p) {
    if (TappaNonPersa(p)) Duplica(p, Scelto(p));
}
void TogliScelte(Postazione& p) {
    if (p.Su<schermata::Inserimento>() || TappaNonPersa(p)) Toglie(p, Scelto(p));
}
void DuplicaGiornata(Postazione& p, int giornata) {
    if (TappaNonPersa(p)) Duplica(p, TappeDelGiorno(p, giornata));
}
void TogliGiornata(Postazione& p, int giornata) {
    if (TappaNonPersa(p)) Toglie(p, TappeDelGiorno(p, giornata));
}

void SpostaPrimaDi(Postazione& p, Tratto righe, int dove) {
    if (!SiPuoCambiare(p) || !TappaNonPersa(p)) return;
    const RigheItinerario& prima = p.documento.Righe();
    ConcludiSpostamento(p, u"spostamento di "_s + NomeDi(prima, righe), SpostaRighe(prima, righe, dove));
}

void SpostaGiornata(Postazione& p, int giornata, int passo) {
    if (!TappaNonPersa(p)) return;
    const auto tratto = TappeDelGiorno(p, giornata);
    const auto vicino = GiornoVicino(p, giornata, passo);
    if (!tratto || !vicino) return;
    ConcludiSpostamento(p, u"spostamento "_s + NomeDelGiorno(giornata),
                        SpostaRighe(p.documento.Righe(), *tratto, passo < 0 ? vicino->da : vicino->a + 1));
}

void SpostaGiornataPrimaDi(Postazione& p, int giornata, int altra) {
    if (!TappaNonPersa(p)) return;
    const auto tratto = TappeDelGiorno(p, giornata);
    if (!tratto || altra == giornata || altra == giornata + 1) return;
    const auto prima = GiornoVicino(p, altra - 1, 1);
    const int dove = prima ? prima->da : NumeroTappe(p.documento.Righe()) + 1;
    ConcludiSpostamento(p, u"spostamento "_s + NomeDelGiorno(giornata),
                        SpostaRighe(p.documento.Righe(), *tratto, dove));
}

const Tappa* TappaFinale(const Postazione& p, int giornata) {
    const auto riga = Giorni(p).RigaFinale(giornata);
    return riga ? &p.documento.Righe()[static_cast<std::size_t>(*riga - 1)] : nullptr;
}

void FineGiornata(Postazione& p, int giornata) {
    if (!TappaNonPersa(p)) return;
    const auto riga = Giorni(p).RigaFinale(giornata);
    if (!riga || !SiPuoCambiare(p)) {
        return p.Mostra(u"Nel giorno %1 non si raggiunge nessuna tappa in cui fermarsi."_s.arg(giornata + 1));
    }
    RigheItinerario righe = p.documento.Righe();
    Tappa& tappa = righe[static_cast<std::size_t>(*riga - 1)];
    tappa.fineGiorno = !tappa.fineGiorno;
    const QString nome = (tappa.fineGiorno ? u"fine giornata a "_s : u"niente fine giornata a "_s) + tappa.localita;
    const bool inutile = tappa.fineGiorno && tappa.sosta.Nulla() && tappa.guida.Nulla() && !tappa.Traghetto();
    const QString localita = tappa.localita;
    if (!Modifica(p, nome, std::move(righe), *riga)) return;
    RicalcolaSulPosto(p);
    if (inutile) p.Mostra(u"«Fine giornata» a %1 non ha effetto senza una sosta o un traghetto."_s.arg(localita));
}

void FineGiornataCorrente(Postazione& p) {
    if (const auto* cronovia = p.Su<schermata::Cronovia>()) FineGiornata(p, cronovia->giornata);
}

void Copia(Postazione& p) {
    if (p.Su<schermata::Cronovia>()) return CopiaCronovia(p);
    const Tratto scelte = RigheScelte(p);
    const RigheItinerario& righe = p.documento.Righe();
    const auto fine = std::min(static_cast<std::size_t>(scelte.a), righe.size());
    const auto inizio = std::min(static_cast<std::size_t>(scelte.da - 1), fine);
    const std::span<const Tappa> copiate = std::span(righe).subspan(inizio, fine - inizio);
    if (NumeroTappe(copiate) == 0) return;
    RigheItinerario tappe;
    std::copy_if(copiate.begin(), copiate.end(), std::back_inserter(tappe), &ConLuogo);
    p.copiate = {TestoPerAppunti(copiate), std::move(tappe), LuogoPrecedente(righe, scelte.da)};
    p.volti.scriviAppunti(p.copiate.testo);
}

void Taglia(Postazione& p) {
    Copia(p);
    TogliScelte(p);
}

void Incolla(Postazione& p) {
    if (!TappaNonPersa(p)) return;
    const QString testo = p.volti.leggiAppunti();
    p.Prova([&] {
        const bool proprie = !testo.isEmpty() && testo == p.copiate.testo;
        const RigheItinerario nuove = proprie ? p.copiate.tappe : LeggiAppunti(testo);
        const auto prima = proprie ? std::optional(p.copiate.prima) : std::nullopt;
        const int riga = p.documento.RigaCorrente();
        const Tratto tutte{1, static_cast<int>(nuove.size())};
        ConcludiSpostamento(p, u"incollatura di "_s + NomeDi(nuove, tutte),
                            InserisciRighe(p.documento.Righe(), riga, nuove, prima));
    });
}

void OrariENote(Postazione& p) {
    const RigheItinerario& righe = p.documento.Righe();
    const int riga = p.documento.RigaCorrente();
    const auto posto = static_cast<std::size_t>(riga - 1);
    if (posto >= righe.size() || righe[posto].localita.trimmed().isEmpty()) {
        return p.Mostra(u"Scegli prima la riga di una tappa; se è nuova, inseriscila."_s);
    }
    const std::optional<VincoliTappa> vincoli = p.volti.chiediVincoli(righe[posto]);
    if (!vincoli) return;
    Modifica(p, u"orari e note di "_s + righe[posto].localita, ImpostaVincoli(righe, riga, *vincoli), riga);
}

void DividiTappaCorrente(Postazione& p) {
    if (!TappaNonPersa(p)) return;
    const RigheItinerario& righe = p.documento.Righe();
    const int riga = p.documento.RigaCorrente();
    const auto posto = static_cast<std::size_t>(riga - 1);
    if (riga < 2 || posto >= righe.size() || righe[posto].km < 2) {
        return p.Mostra(u"Per dividere una tappa scegli una riga con almeno 2 chilometri."_s);
    }
    const std::optional<Divisione> divisione = p.volti.chiediDivisione(LuogoPrecedente(righe, riga), righe[posto]);
    if (!divisione) return;
    auto divise = DividiTappa(righe, riga, divisione->localita, divisione->km);
    if (divise) Modifica(p, u"divisione della tappa per %1"_s.arg(righe[posto].localita), std::move(*divise), riga);
}

}  // namespace cronovia::comandi
