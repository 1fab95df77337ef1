// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/calendario/eventi_viaggio.h"

#include <QHash>
#include <QStringList>
#include <algorithm>

#include "calendar/durata.h"
#include "calendar/testo.h"
#include "schedule/strisce.h"
#include "schedule/testi_giornata.h"
#include "schedule/testi_ore.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMinutiAvviso = 60;

// Bars of one thing that follow each other, as one time.
struct Tempo {
    PezzoDelGiorno pezzo;
    Istante inizio;
    Istante fine;
};

bool Continua(const Tempo& tempo, const PezzoDelGiorno& pezzo, Istante inizio) {
    if (tempo.pezzo.genere != pezzo.genere || tempo.pezzo.riga != pezzo.riga) return false;
    // A short rest lies within its drive; what is no row goes on over midnight only.
    return pezzo.genere == GenerePezzo::Marcia || tempo.fine == inizio;
}

std::vector<Tempo> TempiDelViaggio(const Cronovia& cronovia, const std::vector<Giornata>& giornate) {
    const std::vector<StrisciaDelGiorno> strisce = Strisce(cronovia, giornate);
    std::vector<Tempo> tempi;
    for (std::size_t i = 0; i < strisce.size(); ++i) {
        for (const PezzoDelGiorno& pezzo : strisce[i]) {
            const bool pausa = pezzo.genere == GenerePezzo::Pranzo || pezzo.genere == GenerePezzo::Cena ||
                               pezzo.genere == GenerePezzo::Riposo || pezzo.genere == GenerePezzo::Attesa;
            if (pausa) continue;
            const Istante inizio{giornate[i].data, pezzo.da};
            const Istante fine{giornate[i].data, pezzo.a};
            if (!tempi.empty() && Continua(tempi.back(), pezzo, inizio)) {
                tempi.back().fine = fine;
            } else {
                tempi.push_back({pezzo, inizio, fine});
            }
        }
    }
    return tempi;
}

class RaccoltaEventi {
  public:
    RaccoltaEventi(const Cronovia& cronovia, std::span<const PosizioneTappa> posizioni)
        : cronovia_(cronovia), posizioni_(posizioni) {}

    void Aggiungi(const Tempo& tempo) {
        switch (tempo.pezzo.genere) {
            case GenerePezzo::Marcia:
                return Aggiungi(u"guida"_s, tempo, Marcia(tempo));
            case GenerePezzo::Visita:
                return Aggiungi(u"sosta"_s, tempo, Sosta(tempo));
            case GenerePezzo::Traghetto:
                return Aggiungi(u"traghetto"_s, tempo, Traghetto(tempo));
            case GenerePezzo::Notte:
                if (tempo.pezzo.luogo != "in traghetto"_L1) Aggiungi(u"notte"_s, tempo, Fermi(u"Notte"_s, tempo));
                return;
            case GenerePezzo::GiornoDiRiposo:
                return Aggiungi(u"riposo"_s, tempo, Fermi(u"Giorno di riposo"_s, tempo));
            default:
                return;
        }
    }

    // The departure of a ferry is its event's own.
    void Aggiungi(const EsitoOra& ora) {
        if (ora.genere == GenereOra::Partenza) return;
        const QString localita = TappaDi(ora.tappa).localita;
        const QString quando = TestoOrologioIntero(ora.ora);
        Evento evento;
        const QString come =
            ora.genere == GenereOra::NonDopo ? u"%1: arrivo non dopo le %2"_s : u"%1: arrivo non prima delle %2"_s;
        evento.titolo = come.arg(PrimoMaiuscolo(localita), quando);
        evento.descrizione = Testo(ora, cronovia_);
        evento.inizio = ora.ora;
        evento.minutiAvviso = kMinutiAvviso;
        MettiLuogo(evento, ora.tappa);
        Metti(ora.genere == GenereOra::NonDopo ? u"nondopo"_s : u"nonprima"_s, localita, std::move(evento));
    }

    void Aggiungi(const EsitoScadenza& scadenza) {
        Evento evento;
        evento.titolo = u"A casa entro le "_s + TestoOrologioIntero(scadenza.entro);
        evento.descrizione = Testo(scadenza, cronovia_);
        evento.inizio = scadenza.entro;
        evento.minutiAvviso = kMinutiAvviso;
        Metti(u"casa"_s, {}, std::move(evento));
    }

    void Aggiungi(const Giornata& giornata) {
        Evento evento;
        evento.titolo = TestoGiornata(giornata);
        evento.descrizione = TestiRinvii(giornata, cronovia_).join(u'\n');
        evento.inizio = {giornata.data, {}};
        evento.tuttoIlGiorno = true;
        Metti(u"giorno"_s, QString::number(giornata.numero), std::move(evento));
    }

    std::vector<Evento> Finita() {
        std::stable_sort(eventi_.begin(), eventi_.end(),
                         [](const Evento& a, const Evento& b) { return a.inizio < b.inizio; });
        return std::move(eventi_);
    }

  private:
    [[nodiscard]] const RigaCalcolo& Calcolata(int tappa) const {
        return cronovia_.tabella.righe[static_cast<std::size_t>(tappa)];
    }
    [[nodiscard]] const Tappa& TappaDi(int tappa) const { return Calcolata(tappa).tappa; }
    [[nodiscard]] const RigaCronovia& Riga(const Tempo& tempo) const {
        return cronovia_.righe[static_cast<std::size_t>(tempo.pezzo.riga)];
    }
    static QString TestoOrologioIntero(Istante istante) {
        const Durata ora = InDurata(istante.ora, kGiornoOrologio);
        return ConNumeri(u"00:00", {ora.ore, ora.minuti});
    }

    void MettiLuogo(Evento& evento, int tappa) const {
        evento.luogo = PrimoMaiuscolo(TappaDi(tappa).localita);
        const auto i = static_cast<std::size_t>(tappa);
        if (i < posizioni_.size() && posizioni_[i].Certa()) evento.posizione = posizioni_[i].posizione;
    }

    // Things of one kind at one place are told apart by their order.
    void Metti(const QString& genere, const QString& cosa, Evento evento) {
        const QString chiave = genere + u'/' + Maiuscolo(cosa);
        evento.chiave = chiave + u'/' + QString::number(++viste_[chiave]);
        eventi_.push_back(std::move(evento));
    }
    void Aggiungi(const QString& genere, const Tempo& tempo, Evento evento) {
        evento.inizio = tempo.inizio;
        evento.fine = tempo.fine;
        const bool diTappa = tempo.pezzo.riga != PezzoDelGiorno::kSenzaRiga;
        Metti(genere, diTappa ? TappaDi(Riga(tempo).tappa).localita : tempo.pezzo.luogo, std::move(evento));
    }

    [[nodiscard]] Evento Marcia(const Tempo& tempo) const {
        const RigaCronovia& riga = Riga(tempo);
        const Tappa& tappa = TappaDi(riga.tappa);
        const QString da = riga.tappa > 0 ? PrimoMaiuscolo(TappaDi(riga.tappa - 1).localita) + u' ' : QString();
        Evento evento;
        evento.titolo = u"%1→ %2"_s.arg(da, PrimoMaiuscolo(tappa.localita));
        evento.titolo += u", %1 km"_s.arg(Raggruppa(riga.km));
        if (!tappa.numStrada.isEmpty()) evento.titolo += u", "_s + tappa.numStrada;
        if (riga.verso) evento.descrizione = u"Il tratto continua dopo una pausa."_s;
        MettiLuogo(evento, riga.tappa);
        return evento;
    }

    [[nodiscard]] Evento Sosta(const Tempo& tempo) const {
        const RigaCalcolo& calcolata = Calcolata(Riga(tempo).tappa);
        Evento evento;
        evento.titolo = u"Sosta: "_s + PrimoMaiuscolo(calcolata.tappa.localita);
        QStringList righe = TestiVincoli(calcolata.tappa.vincoli);
        for (const VoceGuida& voce : *calcolata.voci) {
            const QString visita = TestoOre(voce.tempo);
            righe += u"%1 (%2%3)"_s.arg(voce.descrizione, voce.tipo, visita.isEmpty() ? QString() : u", "_s + visita);
        }
        evento.descrizione = righe.join(u'\n');
        MettiLuogo(evento, Riga(tempo).tappa);
        return evento;
    }

    [[nodiscard]] Evento Traghetto(const Tempo& tempo) const {
        const RigaCronovia& riga = Riga(tempo);
        const Tappa& tappa = TappaDi(riga.tappa);
        Evento evento;
        evento.titolo = u"Traghetto per "_s + PrimoMaiuscolo(tappa.localita);
        evento.descrizione = TestiVincoli(tappa.vincoli).join(u'\n');
        MettiLuogo(evento, riga.tappa > 0 ? riga.tappa - 1 : riga.tappa);  // where one boards
        if (tappa.vincoli.ConTraghetto()) {
            evento.minutiAvviso = kMinutiAvviso + tappa.vincoli->traghetto->MinutiImbarco();
        }
        return evento;
    }

    [[nodiscard]] Evento Fermi(const QString& cosa, const Tempo& tempo) const {
        Evento evento;
        evento.titolo = cosa + u": "_s + PrimoMaiuscolo(tempo.pezzo.luogo);
        for (std::size_t i = 0; i < cronovia_.tabella.righe.size(); ++i) {
            if (TappaDi(static_cast<int>(i)).localita != tempo.pezzo.luogo) continue;
            MettiLuogo(evento, static_cast<int>(i));
            break;
        }
        return evento;
    }

    const Cronovia& cronovia_;
    std::span<const PosizioneTappa> posizioni_;
    QHash<QString, int> viste_;
    std::vector<Evento> eventi_;
};

}  // namespace

std::vector<Evento> EventiDelViaggio(const Cronovia& cronovia, NumeroGiorno partenza,
                                     std::span<const PosizioneTappa> posizioni, bool giornate) {
    const std::vector<Giornata> giorni = Giornate(cronovia, partenza);
    RaccoltaEventi raccolta(cronovia, posizioni);
    if (giornate) {
        for (const Giornata& giornata : giorni) raccolta.Aggiungi(giornata);
    }
    for (const Tempo& tempo : TempiDelViaggio(cronovia, giorni)) raccolta.Aggiungi(tempo);
    for (const EsitoOra& ora : cronovia.ore) raccolta.Aggiungi(ora);
    if (cronovia.scadenza) raccolta.Aggiungi(*cronovia.scadenza);
    return raccolta.Finita();
}

}  // namespace cronovia
