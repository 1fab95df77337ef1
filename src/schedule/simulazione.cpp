// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/simulazione.h"

#include <algorithm>
#include <cmath>

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
    }

    // A start within a meal waits until just after it.
    void SaltaPasto(Centesimi pasto, Centesimi durata) {
        if (pasto <= orologio_.ora && orologio_.ora <= pasto + durata) orologio_.ora = pasto + durata + 1_cent;
    }

    const RigaCalcolo& Riga(int tappa) const { return richiesta_.tabella.righe[static_cast<std::size_t>(tappa)]; }

    RigaCronovia& NuovaRiga(GenereRiga genere, int tappa) {
        RigaCronovia& riga = passata_.righe.emplace_back();
        riga.genere = genere;
        riga.tappa = tappa;
        return riga;
    }

    void PercorriTappa(int indice) {
        const Tappa& tappa = Riga(indice).tappa;
        if (tappa.Traghetto()) ++passata_.totali.traghetti;
        if (tappa.SenzaSosta() && tappa.km <= 0) {
            NuovaRiga(GenereRiga::Tappa, indice);
            return;
        }
        for (int resto = tappa.km; resto > 0;) resto -= GuidaPezzo(indice, resto);
        const bool fermata = Sosta(indice);
        const bool ultima = indice + 1 == static_cast<int>(richiesta_.tabella.righe.size());
        if (tappa.km <= 0 && !fermata && ultima) NuovaRiga(GenereRiga::Tappa, indice);
        ElencaGuida(indice);
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
        RigaCronovia& riga = NuovaRiga(GenereRiga::Marcia, indice);
        riga.verso = pezzo.km < resto;
        riga.km = pezzo.km;
        riga.kmProgressivi = kmProgressivi_;
        riga.tempo = pezzo.tempo;
        riga.data = orologio_.data;
        riga.ora = orologio_.ora;
        Annota(GenereFascia::Marcia, inizio);
        PastiENotte(riga.eventi);
        riga.cambiaGiorno = orologio_.data > riga.data;
        riga.eventi.riposo = Riposi();
        passata_.fine = {orologio_.data, riga.ora, orologio_.data - richiesta_.dataPartenza + 1};
        return pezzo.km;
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
        const auto qui = std::find_if(passata_.righe.rbegin(), passata_.righe.rend(),
                                      [](const RigaCronovia& riga) { return riga.genere != GenereRiga::Guida; });
        if (qui != passata_.righe.rend()) qui->riposoDopo = true;
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
        Annota(genere, inizio);
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
        const auto ultima = std::find_if(passata_.righe.rbegin(), passata_.righe.rend(),
                                         [](const RigaCronovia& riga) { return ConMomento(riga.genere); });
        if (ultima != passata_.righe.rend()) {
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
        Annota(GenereFascia::Riposo, inizio);
        orologio_.inizioGuida += OreDiGuida() * volte;
        return volte > 0;
    }

    bool Sosta(int indice) {
        const RigaCalcolo& tabella = Riga(indice);
        Durata& sosta = passata_.soste[static_cast<std::size_t>(indice)];
        const Durata prevista = sosta;
        const EsitoSosta esito = CalcolaLaSosta(
            {sosta, tabella.fineGiorno, tabella.tappa.Traghetto(), richiesta_.fattoreSoste}, orario_, orologio_);
        if (esito.motivo == Motivo::Nessuno) return false;
        AnnotaSosta(esito, indice);
        const bool cambiaGiorno = esito.orologio.data > orologio_.data;
        orologio_ = esito.orologio;
        orologio_.inizioGuida = orologio_.ora;
        sosta = esito.sosta;
        RigaCronovia& riga = NuovaRiga(GenereRiga::Sosta, indice);
        riga.sosta = prevista;
        riga.fineGiorno = tabella.fineGiorno;
        riga.cambiaGiorno = cambiaGiorno;
        riga.motivo = esito.motivo;
        riga.data = orologio_.data;
        riga.ora = orologio_.ora;
        return true;
    }

    // The time since `inizio`, spent on the last row.
    void Annota(GenereFascia genere, Centesimi inizio) {
        const auto riga = static_cast<int>(passata_.righe.size()) - 1;
        passata_.fasce.push_back({genere, riga, orologio_.data, inizio, orologio_.ora});
    }

    // What a stop, whose row comes next, spends its time on and puts off.
    void AnnotaSosta(const EsitoSosta& esito, int indice) {
        for (Fascia fascia : esito.fasce) {
            fascia.riga = static_cast<int>(passata_.righe.size());
            passata_.fasce.push_back(fascia);
        }
        if (esito.ritardo > 0_cent) {
            const bool traghetto = Riga(indice).tappa.Traghetto();
            passata_.rinvii.push_back({traghetto ? GenereRinvio::TraghettoPerso : GenereRinvio::ArrivoTardivo,
                                       orologio_.data, indice, esito.ritardo, 0});
        }
        if (esito.giorni > 1) {
            passata_.rinvii.push_back(
                {GenereRinvio::SostaSuPiuGiorni, esito.fasce.front().data, indice, {}, esito.giorni});
        }
    }

    void ElencaGuida(int indice) {
        const auto voci = static_cast<int>(Riga(indice).voci->size());
        for (int voce = 0; voce < voci; ++voce) NuovaRiga(GenereRiga::Guida, indice).voce = voce;
    }

    const RichiestaPassata& richiesta_;
    const OrarioCorretto& orario_;
    const ParametriViaggio& p_;
    int tolleranza_;
    Orologio orologio_;
    std::int64_t kmProgressivi_ = 0;
    Passata passata_;
};

}  // namespace

Passata SimulaPassata(const RichiestaPassata& richiesta, Progress& progress) {
    return Simulazione(richiesta).Esegui(progress);
}

}  // namespace cronovia
