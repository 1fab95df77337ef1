// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/simulazione.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "schedule/ore_fisse.h"
#include "schedule/registro.h"
#include "schedule/sosta.h"

namespace cronovia {

namespace {

// A piece of road that is driven at one go.
struct Pezzo {
    int km = 0;
    Centesimi tempo;
};

// How near to its hour a meal or the night is taken, in hundredths of an hour: a short rest and one more, at least 10.
int Tolleranza(const OrarioCorretto& orario) { return std::max(static_cast<int>(orario.Riposo().Valore()) + 1, 10); }

class Simulazione {
  public:
    explicit Simulazione(const RichiestaPassata& richiesta)
        : richiesta_(richiesta),
          orario_(richiesta.orario),
          p_(richiesta.orario.Parametri()),
          tolleranza_(Tolleranza(richiesta.orario)) {
        passata_.soste.assign(richiesta.soste.begin(), richiesta.soste.end());
        passata_.righe.reserve(richiesta.tabella.righe.size() * 2);
        Parti();
    }

    Passata Esegui(Progress& progress) {
        const auto tappe = static_cast<int>(richiesta_.tabella.righe.size());
        for (int tappa = 0; tappa < tappe; ++tappa) {
            if (progress.StopRequested()) {
                passata_.interrotta = true;
                break;
            }
            progress.Advance(tappa + 1, tappe);
            PercorriTappa(tappa);
        }
        passata_.data = orologio_.data;
        passata_.ora = orologio_.ora;
        return std::move(passata_);
    }

  private:
    void Parti() {
        orologio_.data = richiesta_.dataPartenza;
        orologio_.ora = richiesta_.oraPartenza;
        orologio_.ultimoRiposo = richiesta_.dataPartenza;
        SaltaPasto(p_.oraPranzo, p_.durataPranzo);
        SaltaPasto(p_.oraCena, p_.durataCena);
        if (orologio_.ora >= p_.oraNotte) orologio_.NuovoGiorno(p_.oraColazione);
        orologio_.pranzoFatto = p_.oraPranzo + p_.durataPranzo < orologio_.ora;
        orologio_.cenaFatta = p_.oraCena + p_.durataCena < orologio_.ora;
        orologio_.inizioGuida = orologio_.ora;
        qui_ = orologio_.Momento();
    }

    // A start within a meal waits until just after it.
    void SaltaPasto(Centesimi pasto, Centesimi durata) {
        if (pasto <= orologio_.ora && orologio_.ora <= pasto + durata) orologio_.ora = pasto + durata + 1_cent;
    }

    const RigaCalcolo& Riga(int tappa) const { return richiesta_.tabella.righe[static_cast<std::size_t>(tappa)]; }

    void PercorriTappa(int indice) {
        const Tappa& tappa = Riga(indice).tappa;
        if (tappa.Traghetto()) ++passata_.totali.traghetti;
        const Vincoli* vincoli = tappa.vincoli.operator->();
        const bool conOre = vincoli != nullptr && (vincoli->traghetto || vincoli->arrivo);
        if (SoloNome(indice) && !conOre) {
            registro_.NuovaRiga(GenereRiga::Tappa, indice);
            return;
        }
        if (vincoli != nullptr && vincoli->traghetto) {
            Naviga(indice, *vincoli->traghetto);
        } else {
            for (int resto = tappa.km; resto > 0;) resto -= GuidaPezzo(indice, resto);
        }
        const bool fermata =
            vincoli != nullptr && vincoli->arrivo ? SostaAOrario(indice, *vincoli->arrivo) : Sosta(indice);
        const bool ultima = indice + 1 == static_cast<int>(richiesta_.tabella.righe.size());
        if (tappa.km <= 0 && !fermata && !conOre && ultima) registro_.NuovaRiga(GenereRiga::Tappa, indice);
        if (!SoloNome(indice)) registro_.ElencaGuida(indice, static_cast<int>(Riga(indice).voci->size()));
    }

    // Waits at the quay and sails, through meals and nights; what is eaten on board counts as eaten.
    void Naviga(int indice, const TraghettoAOrario& traghetto) {
        Imbarco imbarco = ImbarcoPer(traghetto, qui_);
        if (orologio_.Momento() > imbarco.partenza) imbarco = ImbarcoPer(traghetto, orologio_.Momento());
        const Istante sbarco = imbarco.partenza + traghetto.Navigazione();
        EsitoOra esito{GenereOra::Partenza, indice,          0, imbarco.partenza, {}, imbarco.ritardo,
                       imbarco.perso,       imbarco.margine, 0};
        if (imbarco.ritardo > 0_cent && !imbarco.perso) esito.ora = traghetto.Partenza().Il(imbarco.partenza.data);
        Aspetta(esito, std::max(indice - 1, 0), imbarco.partenza);

        RigaCronovia& riga = registro_.NuovaRiga(GenereRiga::Traghetto, indice);
        registro_.AnnotaFino(GenereFascia::Traghetto, imbarco.partenza, sbarco, 0_cent, kGiornoOrologio);
        riga.cambiaGiorno = sbarco.data > imbarco.partenza.data;
        orologio_.Va(sbarco);
        riga.data = orologio_.data;
        riga.ora = orologio_.ora;
        qui_ = sbarco;
        if (traghetto.Navigazione() >= orario_.VisitaGiorno()) orologio_.ultimoRiposo = orologio_.data;
        orologio_.pranzoFatto = orologio_.pranzoFatto || orologio_.ora >= p_.oraPranzo;
        orologio_.cenaFatta = orologio_.cenaFatta || orologio_.ora >= p_.oraCena;
        Riprendi(riga, Riga(indice).fineGiorno && !ConSosta(indice));
        passata_.fine = {orologio_.data, riga.ora, orologio_.data - richiesta_.dataPartenza + 1};
    }

    // The stop at a stage that others set hours for. A visit that takes long, or that is to things that the guide
    // tells of, uses the time until the hour; another one waits for it.
    bool SostaAOrario(int indice, const OreDiArrivo& ore) {
        const NumeroGiorno giorno = (qui_ + 0_cent).data;
        const auto prima = ore.NonPrima() ? std::optional(ore.NonPrima()->Il(giorno)) : std::nullopt;
        const auto presto = [&] { return prima && orologio_.Momento() < *prima; };
        EsitoOra esito{GenereOra::NonDopo, indice, 0, {}, {}, {}, false, {}, 0};
        if (ore.NonDopo()) {
            esito.ora = ore.NonDopo()->Il(prima ? std::max(giorno, prima->data) : giorno);
            esito.margine = esito.ora - qui_;
            if (*esito.margine < 0_cent) esito.ritardo = 0_cent - *std::exchange(esito.margine, std::nullopt);
        }
        const bool attesaConVisita = presto() && VisitaSubito(indice);
        if (ore.NonDopo() && (attesaConVisita || !presto())) registro_.NuovaOra(esito, indice, qui_, orologio_.data);
        if (attesaConVisita) {
            esito.ritardo = 0_cent;
            esito.margine.reset();
        }
        esito.genere = GenereOra::NonPrima;
        esito.ora = prima.value_or(esito.ora);
        if (presto() && !attesaConVisita) Riprendi(Aspetta(esito, indice, *prima), false, ConSosta(indice));
        const bool fermata = Sosta(indice);
        if (presto()) Riprendi(Aspetta(esito, indice, *prima), false);
        return fermata;
    }

    // Whether a stop follows the arrival: a visit, or a ferry at whichever hour.
    bool ConSosta(int indice) const {
        const Durata& sosta = passata_.soste[static_cast<std::size_t>(indice)];
        const bool traghetto = Riga(indice).tappa.TraghettoSenzaOrario();
        return !SoloNome(indice) && (traghetto || (!sosta.Nulla() && richiesta_.fattoreSoste > 0));
    }

    // Without a way there and a stop planned there, its ferry does not count, nor what the guide tells of it.
    bool SoloNome(int indice) const {
        const Tappa& tappa = Riga(indice).tappa;
        return tappa.SenzaSosta() && tappa.km <= 0 && !tappa.vincoli.ConTraghetto();
    }

    // It may not depend on the hour of the arrival: who comes earlier would leave later.
    bool VisitaSubito(int indice) const {
        const RigaCalcolo& riga = Riga(indice);
        const Centesimi giorno = orario_.VisitaGiorno();
        return !SoloNome(indice) && (!riga.sostaGuida.Nulla() || InCentesimi(riga.sosta, giorno) >= giorno);
    }

    // Lets the time until a later moment go by. The driving begins anew after it only when it is as long as a rest,
    // and a rest of days is not due any more only when it is as long as that one.
    RigaCronovia& Aspetta(EsitoOra esito, int tappa, Istante fino) {
        const Istante inizio = orologio_.Momento();
        esito.attesa = std::max(fino - inizio, 0_cent);
        if (esito.attesa > 0_cent) ContaIPasti();
        RigaCronovia& riga = registro_.NuovaOra(esito, tappa, fino, orologio_.data);
        riga.cambiaGiorno = fino.data > inizio.data;
        registro_.AnnotaFino(GenereFascia::Attesa, inizio, fino, p_.oraColazione, p_.oraNotte);
        orologio_.Va(fino);
        if (riga.cambiaGiorno || esito.attesa >= orario_.Riposo()) orologio_.inizioGuida = orologio_.ora;
        const bool comeRiposo =
            p_.riposoGiorno > 0 && esito.attesa >= kGiornoOrologio * static_cast<float>(p_.riposoGiorno);
        if (comeRiposo) orologio_.ultimoRiposo = orologio_.data;
        qui_ = orologio_.Momento();
        return riga;
    }

    // From a wait or a visit within its own hours on, every day has its meals: a later arrival that counted those of
    // the day before as its own would go on earlier than one in time. Those whose hour is still to come are not taken
    // yet.
    void ContaIPasti() {
        atteso_ = true;
        orologio_.pranzoFatto = orologio_.pranzoFatto && orologio_.ora >= p_.oraPranzo;
        orologio_.cenaFatta = orologio_.cenaFatta && orologio_.ora >= p_.oraCena;
    }

    // After a wait or a landing: a meal that is going on is ended, after the night hour one sleeps, driving begins
    // with breakfast. A stop that follows sees to it itself.
    void Riprendi(RigaCronovia& riga, bool fineGiorno, bool sostaDopo = false) {
        if (sostaDopo) return;
        riga.eventi.pranzo = PastoInCorso(GenereFascia::Pranzo, p_.oraPranzo, p_.durataPranzo, orologio_.pranzoFatto);
        riga.eventi.cena = PastoInCorso(GenereFascia::Cena, p_.oraCena, p_.durataCena, orologio_.cenaFatta);
        const bool sbarco = riga.genere == GenereRiga::Traghetto;
        if (sbarco || riga.cambiaGiorno) {
            orologio_.ora = std::max(orologio_.ora, p_.oraColazione);
            orologio_.inizioGuida = orologio_.ora;
        }
        riga.eventi.notte = fineGiorno || orologio_.ora >= p_.oraNotte - Centesimi(tolleranza_);
        if (riga.eventi.notte) Notte();
        riga.cambiaGiorno = riga.cambiaGiorno || riga.eventi.notte;
    }

    bool PastoInCorso(GenereFascia genere, Centesimi pasto, Centesimi durata, bool& fatto) {
        const bool passato = orologio_.ora >= pasto;
        const bool inCorso = passato && !fatto && orologio_.ora < pasto + durata;
        fatto = fatto || passato;
        if (!inCorso) return false;
        const Centesimi inizio = std::exchange(orologio_.ora, pasto + durata);
        registro_.Annota(genere, orologio_.data, inizio, orologio_.ora);
        orologio_.inizioGuida = orologio_.ora;
        return true;
    }

    // Drives one piece of a leg of which `resto` kilometres are left; returns the piece's kilometres.
    int GuidaPezzo(int indice, int resto) {
        if (orologio_.ora > p_.oraNotte + Centesimi(tolleranza_)) NotteTardiva();
        const TipoStrada tipo = Riga(indice).tappa.TipoEffettivo();
        const Pezzo pezzo = Taglia(resto, p_.mediaKm[Indice(tipo)]);
        GiornoDiRiposo(indice);
        const Centesimi inizio = orologio_.ora;
        orologio_.ora += pezzo.tempo;
        kmProgressivi_ += pezzo.km;
        passata_.totali.Aggiunge(tipo, pezzo.km, pezzo.tempo);
        RigaCronovia& riga = registro_.NuovaRiga(GenereRiga::Marcia, indice);
        riga.verso = pezzo.km < resto;
        riga.km = pezzo.km;
        riga.kmProgressivi = kmProgressivi_;
        riga.tempo = pezzo.tempo;
        riga.data = orologio_.data;
        riga.ora = orologio_.ora;
        registro_.Annota(GenereFascia::Marcia, orologio_.data, inizio, orologio_.ora);
        qui_ = orologio_.Momento();
        const Orologio arrivo = orologio_;
        const std::size_t fasce = passata_.fasce.size();
        PastiENotte(riga.eventi);
        riga.eventi.riposo = Riposi();
        if (pezzo.km == resto && PerdeIlTraghetto(indice)) {
            orologio_ = arrivo;
            passata_.fasce.resize(fasce);
            riga.eventi = {};
        }
        riga.cambiaGiorno = orologio_.data > riga.data;
        passata_.fine = {orologio_.data, riga.ora, orologio_.data - richiesta_.dataPartenza + 1};
        return pezzo.km;
    }

    // Whether meal, rest or night on arriving at the quay would let the ferry leave: they are taken on board then.
    bool PerdeIlTraghetto(int indice) const {
        if (indice + 1 >= static_cast<int>(richiesta_.tabella.righe.size())) return false;
        const VincoliTappa& vincoli = Riga(indice + 1).tappa.vincoli;
        return vincoli.ConTraghetto() && !ConSosta(indice) &&
               orologio_.Momento() > ImbarcoPer(*vincoli->traghetto, qui_).partenza;
    }

    // The part of `km` kilometres that can be driven before the next rest, meal or night.
    Pezzo Taglia(int km, int media) {
        Pezzo pezzo{km, TempoDiGuida(km, media)};
        if (ConRiposi() && orologio_.ora + pezzo.tempo > orologio_.inizioGuida + OreDiGuida()) {
            pezzo.km = std::min(pezzo.km, media * p_.riposoOre);
            pezzo.tempo = TempoDiGuida(pezzo.km, media);
        }
        const Centesimi fine = orologio_.ora + pezzo.tempo;
        if (!orologio_.pranzoFatto && fine >= p_.oraPranzo) {
            pezzo.km = KmFinoA(p_.oraPranzo, media, pezzo.km);
        } else if (!orologio_.cenaFatta && fine >= p_.oraCena) {
            pezzo.km = KmFinoA(p_.oraCena, media, pezzo.km);
            orologio_.cenaFatta = true;
        } else if (fine >= p_.oraNotte) {
            pezzo.km = KmFinoA(p_.oraNotte, media, pezzo.km);
        }
        pezzo.tempo = TempoDiGuida(pezzo.km, media);
        return pezzo;
    }

    int KmFinoA(Centesimi ora, int media, int massimo) const {
        const double km = std::floor(double{(ora - orologio_.ora).Valore()} * media / 100.0);
        return km < 1 ? 1 : static_cast<int>(std::min<double>(km, massimo));
    }

    void GiornoDiRiposo(int tappa) {
        if (p_.riposoGiorno <= 0 || p_.riposoDopoGiorni <= 0) return;
        if (orologio_.ultimoRiposo + p_.riposoDopoGiorni > orologio_.data) return;
        passata_.rinvii.push_back({GenereRinvio::GiorniDiRiposo, orologio_.data, tappa, {}, p_.riposoGiorno});
        orologio_.data += p_.riposoGiorno;
        orologio_.ultimoRiposo = orologio_.data;
        if (RigaCronovia* qui = registro_.Ultima([](GenereRiga genere) { return genere != GenereRiga::Guida; })) {
            qui->riposoDopo = true;
        }
    }

    void PastiENotte(Eventi& eventi) {
        eventi.pranzo = Pasto(GenereFascia::Pranzo, p_.oraPranzo, p_.durataPranzo, orologio_.pranzoFatto);
        eventi.cena = Pasto(GenereFascia::Cena, p_.oraCena, p_.durataCena, orologio_.cenaFatta);
        eventi.notte = QuasiUguale(p_.oraNotte, orologio_.ora, tolleranza_);
        if (eventi.notte) Notte();
    }

    bool Pasto(GenereFascia genere, Centesimi pasto, Centesimi durata, bool& fatto) {
        if (!QuasiUguale(pasto, orologio_.ora, tolleranza_)) return false;
        const Centesimi inizio = orologio_.ora;
        orologio_.ora += durata;
        registro_.Annota(genere, orologio_.data, inizio, orologio_.ora);
        orologio_.inizioGuida = orologio_.ora;
        fatto = true;
        return true;
    }

    void Notte() {
        orologio_.NuovoGiorno(p_.oraColazione);
        orologio_.inizioGuida = orologio_.ora;
    }

    // A dinner or several rests ended well past the night hour: the night is taken there, before driving on.
    void NotteTardiva() {
        if (RigaCronovia* ultima = registro_.Ultima(ConMomento)) {
            ultima->eventi.notteTardiva = true;
            ultima->cambiaGiorno = true;
            const Centesimi ritardo = orologio_.ora - p_.oraNotte;
            passata_.rinvii.push_back({GenereRinvio::NotteTardiva, orologio_.data, ultima->tappa, ritardo, 0});
        }
        Notte();
    }

    bool ConRiposi() const { return p_.riposoOre > 0 && p_.riposoMinuti > 0; }
    Centesimi OreDiGuida() const { return Centesimi(p_.riposoOre * 100); }

    // The short rests that are due by now; true when there were any.
    bool Riposi() {
        if (!ConRiposi() || orologio_.ora < orologio_.inizioGuida + OreDiGuida()) return false;
        const float volte = std::floor((orologio_.ora - orologio_.inizioGuida).Valore() / OreDiGuida().Valore());
        const Centesimi inizio = orologio_.ora;
        orologio_.ora += orario_.Riposo() * volte;
        registro_.Annota(GenereFascia::Riposo, orologio_.data, inizio, orologio_.ora);
        orologio_.inizioGuida += OreDiGuida() * volte;
        return volte > 0;
    }

    bool Sosta(int indice) {
        if (SoloNome(indice)) return false;
        const RigaCalcolo& tabella = Riga(indice);
        const Tappa& tappa = tabella.tappa;
        Durata& sosta = passata_.soste[static_cast<std::size_t>(indice)];
        const Durata prevista = sosta;
        const auto visite = tappa.vincoli ? tappa.vincoli->visite : std::nullopt;
        if (visite && ConSosta(indice)) ContaIPasti();
        const EsitoSosta esito = CalcolaLaSosta(
            {sosta, tabella.fineGiorno, tappa.TraghettoSenzaOrario(), richiesta_.fattoreSoste, visite, atteso_},
            orario_, orologio_);
        if (esito.motivo == Motivo::Nessuno) return false;
        registro_.AnnotaSosta(esito, indice, tappa.TraghettoSenzaOrario(), orologio_.data);
        const bool cambiaGiorno = esito.orologio.data > orologio_.data;
        orologio_ = esito.orologio;
        orologio_.inizioGuida = orologio_.ora;
        qui_ = orologio_.Momento();
        sosta = esito.sosta;
        RigaCronovia& riga = registro_.NuovaRiga(GenereRiga::Sosta, indice);
        riga.sosta = prevista;
        riga.fineGiorno = tabella.fineGiorno;
        riga.cambiaGiorno = cambiaGiorno;
        riga.motivo = esito.motivo;
        riga.data = orologio_.data;
        riga.ora = orologio_.ora;
        return true;
    }

    const RichiestaPassata& richiesta_;
    const OrarioCorretto& orario_;
    const ParametriViaggio& p_;
    int tolleranza_;
    Orologio orologio_;
    bool atteso_ = false;  // there was a wait, or a visit within its own hours
    Istante qui_;          // since when one is here: before the meal, rests or night that an arrival brought
    std::int64_t kmProgressivi_ = 0;
    Passata passata_;
    Registro registro_{passata_};
};

}  // namespace

Passata SimulaPassata(const RichiestaPassata& richiesta, Progress& progress) {
    return Simulazione(richiesta).Esegui(progress);
}

}  // namespace cronovia
