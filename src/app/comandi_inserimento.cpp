// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comandi_inserimento.h"

#include <algorithm>
#include <utility>

#include "app/comandi_copia.h"
#include "app/comandi_righe.h"
#include "app/comandi_viaggio.h"
#include "app/niente_perso.h"
#include "itinerary/tratti.h"

namespace cronovia::comandi {

using namespace Qt::StringLiterals;

namespace {

void SalvaTappe(Postazione& p) {
    const int riga = p.documento.RigaCorrente();
    const bool salvate = SalvaOChiede(p, u"L'itinerario non è stato salvato."_s,
                                      [&] { return p.documento.SalvaTappe(p.volti.avanzamento); });
    if (salvate) SelezionaRiga(p, riga);
}

struct CambioSoste {
    QString domanda;
    QString effetto;
    QString titolo;
    QString nome;  // of the step
};

// All stops at once, when the person says so.
void CambiaLeSoste(Postazione& p, const CambioSoste& cambio, const std::function<RigheItinerario()>& cambiate) {
    if (!TappaNonPersa(p)) return;
    const QString domanda =
        u"%1\n\nI tempi traghetto e riposi non sono influenzati e la\n"
        "%2 sarà effettiva dopo il salvataggio dell'itinerario.\n\nProcedo?\n\n"_s.arg(cambio.domanda, cambio.effetto);
    if (!p.ChiedeSePerdere(domanda + p.documento.Nome(), cambio.titolo)) return;
    RigheItinerario righe;
    if (!p.Prova([&] { righe = cambiate(); })) return;
    Modifica(p, cambio.nome, std::move(righe), p.documento.RigaCorrente());
}

// The way home begins where the way out has been already.
QString SenzaRitorno(const RigheItinerario& tappe) {
    QString testo = u"Nessun ritorno da inserire: la località dell'ultima tappa non è tra quelle già toccate."_s;
    if (tappe.size() < 2) return testo;
    return testo +
           u"\n\nInserisci prima la località da cui riprendi la strada dell'andata, per esempio %1: da lì il ritorno "
           "si aggiunge da solo."_s.arg(tappe[tappe.size() - 2].localita);
}

}  // namespace

schermata::Inserimento NuovoInserimento(const Documento& documento) {
    const CampiTappa campi = documento.CampiCorrenti();
    return {campi, campi, documento.RigaCorrente()};
}

void SegueLaRiga(Postazione& p) {
    auto* inserimento = p.TappaInScrittura();
    if (inserimento == nullptr) return;
    schermata::Inserimento nuovo = NuovoInserimento(p.documento);
    if (nuovo.riga == inserimento->riga && nuovo.proposti == inserimento->proposti) {
        nuovo.campi = std::move(inserimento->campi);
        nuovo.letti = std::move(inserimento->letti);
    }
    *inserimento = std::move(nuovo);
}

std::optional<bool> KmProgressivi(const Postazione& p) {
    const int riga = p.documento.RigaCorrente();
    if (!p.InInserimento() || riga <= 2) return std::nullopt;
    return KmPrecedenti(p.documento.Righe(), p.documento.Riepilogo(), riga) > 100;
}

int KmInseriti(const Postazione& p, const CampiTappa& campi) {
    if (!campi.kmProgressivi) return campi.km;
    const int riga = p.documento.RigaCorrente();
    return KmDellaTappa(campi.km, KmPrecedenti(p.documento.Righe(), p.documento.Riepilogo(), riga), riga);
}

void Itinerario(Postazione& p) {
    if (SenzaMeta(p)) return;
    p.documento.SelezionaRiga(p.documento.RigaCorrente());
    p.schermata = NuovoInserimento(p.documento);
}

bool SelezionaRiga(Postazione& p, int riga) {
    const auto* inserimento = p.TappaInScrittura();
    const int libera = NumeroTappe(p.documento.Righe()) + 1;
    const bool altra = inserimento != nullptr && std::clamp(riga, 1, libera) != inserimento->riga;
    if (altra && !TappaNonPersa(p)) return false;
    p.documento.SelezionaRiga(riga);
    SegueLaRiga(p);
    return true;
}

bool Modifica(Postazione& p, const QString& nome, RigheItinerario nuove, int riga, CambiPosizioni posizioni) {
    if (!p.Prova([&] { p.documento.Modifica(nome, std::move(nuove), riga, std::move(posizioni)); })) return false;
    SegueLaRiga(p);
    return true;
}

void Inserisce(Postazione& p) {
    auto* inserimento = p.Su<schermata::Inserimento>();
    if (inserimento == nullptr) return;
    inserimento->appenaInserita = false;
    const RigheItinerario& righe = p.documento.Righe();
    const int riga = p.documento.RigaCorrente();
    CampiTappa campi = inserimento->campi;
    campi.km = KmInseriti(p, campi);
    const std::vector<Message> rifiuti = ControllaTappa(campi, riga);
    for (const Message& rifiuto : rifiuti) p.volti.interazione.Show(rifiuto);
    if (!rifiuti.empty()) return;
    const bool nuova =
        riga > static_cast<int>(righe.size()) || righe[static_cast<std::size_t>(riga - 1)].localita.isEmpty();
    const QString nome = (nuova ? u"inserimento di %1"_s : u"modifica di %1"_s).arg(campi.localita);
    if (Modifica(p, nome, InserisceTappa(righe, riga, campi), riga + 1)) inserimento->appenaInserita = true;
}

void Aggiunge(Postazione& p) {
    if (!TappaNonPersa(p)) return;
    const int riga = p.documento.RigaCorrente();
    Modifica(p, u"apertura di una riga"_s, InserisciRigheItinerario(p.documento.Righe(), riga, 1), riga);
}

void Cancella(Postazione& p) {
    if (const Tratto scelte = RigheScelte(p); scelte.da < scelte.a) return TogliScelte(p);
    const int riga = p.documento.RigaCorrente();
    Modifica(p, u"cancellazione di una riga"_s, CancellaRiga(p.documento.Righe(), riga), riga);
}

void AzzeraSoste(Postazione& p) {
    CambiaLeSoste(p,
                  {u"Vuoi azzerare le soste indicate nell'itinerario?"_s, u"cancellazione"_s,
                   u"Azzera soste itinerario"_s, u"azzeramento delle soste"_s},
                  [&] { return cronovia::AzzeraSoste(p.documento.Righe()); });
}

void Ritorno(Postazione& p) {
    if (!TappaNonPersa(p)) return;
    ItinerarioConTratto esito = cronovia::Ritorno(p.documento.Righe());
    if (!esito.trovata) {
        p.Mostra(SenzaRitorno(esito.righe));
        esito.rigaCorrente = static_cast<int>(esito.righe.size()) + 1;  // what is typed next replaces no stage
    }
    Modifica(p, u"ritorno alla partenza"_s, std::move(esito.righe), esito.rigaCorrente);
}

void Trasferisce(Postazione& p) {
    CambiaLeSoste(p,
                  {u"Vuoi copiare le soste indicate nella Guida nelle tappe dell'itinerario?"_s, u"modifica"_s,
                   u"Copia soste Guida -> Itinerario"_s, u"copia delle soste della guida"_s},
                  [&] {
                      return ConSosteDellaGuida(p.sessione.Archivio(), p.documento.Righe(), p.documento.Orario(),
                                                p.volti.avanzamento);
                  });
    p.volti.avanzamento.Advance(0, 0);
}

void Cerca(Postazione& p) {
    if (auto* inserimento = p.Su<schermata::Inserimento>()) inserimento->elencoTappe = true;
}

void ScegliTappa(Postazione& p, int riga) {
    if (auto* inserimento = p.Su<schermata::Inserimento>()) inserimento->elencoTappe = false;
    SelezionaRiga(p, riga);
}

void Memorizza(Postazione& p) {
    const QString titolo = u"Salvataggio itinerario"_s;
    const Answer risposta = p.volti.interazione.Ask({u"Vuoi salvare l'itinerario?"_s, titolo, true});
    if (risposta == Answer::Cancel) return;
    if (risposta == Answer::Yes) return SalvaTappe(p);
    if (!p.ChiedeSePerdere(u"Vuoi recuperare l'itinerario originale?\n\n"_s + p.documento.Nome(), titolo)) return;
    p.Prova([&] {
        p.documento.RicaricaTappe();
        p.schermata = NuovoInserimento(p.documento);
    });
}

void Fine(Postazione& p) {
    if (p.Su<schermata::Copia>()) return RinunciaDuplicaItinerario(p);
    auto* inserimento = p.Su<schermata::Inserimento>();
    if (inserimento != nullptr && inserimento->elencoTappe) {
        inserimento->elencoTappe = false;
        return;
    }
    if (NientePerso(p)) p.Prova([&] { p.VaiAlViaggio(); });
}

}  // namespace cronovia::comandi
