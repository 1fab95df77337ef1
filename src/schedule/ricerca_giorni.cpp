// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/ricerca_giorni.h"

#include <QStringList>
#include <algorithm>
#include <cmath>
#include <map>

#include "itinerary/riepilogo.h"
#include "schedule/simulazione.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kTappeDaProvareTutte = 300;
constexpr float kMassimoGiorniSosta = 99;  // that a stop can have in an itinerary

// One pass over the trip with part of its stops.
struct Prova {
    PropostaGiorni proposta;
    std::vector<Rinvio> rinvii;
    bool inTempo = true;  // at home
};

class Provatore {
  public:
    Provatore(const Meta& meta, const TabellaCalcolo& tabella, const OrarioCorretto& orario, Progress& progress)
        : meta_(meta), tabella_(tabella), orario_(orario), progress_(progress) {
        if (meta.scadenza) entro_ = meta.scadenza->Momento();
    }

    const Prova& Con(int percento) {
        const auto gia = prove_.find(percento);
        return gia != prove_.end() ? gia->second : prove_.emplace(percento, Simula(percento)).first->second;
    }
    [[nodiscard]] int Giorni(int percento) { return Con(percento).proposta.giorni; }

    /// Whether such stops give just so many days, and one is home in time.
    [[nodiscard]] bool Danno(int percento, int giorni) { return Giorni(percento) == giorni && Con(percento).inTempo; }

    /// The least per cent that gives more days than that, or as many, or has one late; one beyond the last when none
    /// does.
    int Primo(int giorni) {
        int senza = -1;
        int con = kMassimoPercento + 1;
        while (con - senza > 1) {
            const int mezzo = (senza + con) / 2;
            (Giorni(mezzo) >= giorni || !Con(mezzo).inTempo ? con : senza) = mezzo;
        }
        return con;
    }

    /// The per cent nearest to all of the stops that gives just so many days, of which `primo` is the first that gives
    /// as many or more. Now and then longer stops make fewer days: a journey of usual length is looked through then.
    std::optional<int> Esatto(int giorni, int primo) {
        if (primo <= kMassimoPercento && Danno(primo, giorni)) {
            const int vicino = std::clamp(100, primo, std::max(primo, Primo(giorni + 1) - 1));
            return Danno(vicino, giorni) ? vicino : primo;
        }
        if (tabella_.righe.size() > kTappeDaProvareTutte) return std::nullopt;
        for (int lontano = 0; lontano <= 100; ++lontano) {
            for (const int percento : {100 - lontano, 100 + lontano}) {
                if (Danno(percento, giorni)) return percento;
            }
        }
        return std::nullopt;
    }

    [[nodiscard]] bool Interrotto() const { return interrotto_; }

  private:
    // What is typed has whole minutes: those are computed with.
    Prova Simula(int percento) {
        const Centesimi giorno = orario_.VisitaGiorno();
        Prova prova{{percento, 0, {}}, {}, true};
        for (const RigaCalcolo& riga : tabella_.righe) {
            const Centesimi sosta = InCentesimi(riga.sosta, giorno) * (static_cast<float>(percento) / 100.0F);
            prova.proposta.soste.push_back(InDurata(std::min(sosta, giorno * kMassimoGiorniSosta), giorno));
        }
        const Passata passata = SimulaPassata(
            {tabella_, prova.proposta.soste, *meta_.dataInizio, meta_.oraInizio, orario_, 1.0F}, progress_);
        interrotto_ = interrotto_ || passata.interrotta;
        prova.proposta.giorni = passata.fine ? passata.fine->giorni : 0;
        prova.rinvii = passata.rinvii;
        prova.inTempo = InTempo(passata.righe, entro_);
        return prova;
    }

    const Meta& meta_;
    const TabellaCalcolo& tabella_;
    const OrarioCorretto& orario_;
    Progress& progress_;
    std::optional<Istante> entro_;
    std::map<int, Prova> prove_;
    bool interrotto_ = false;
};

QString GiorniSono(int giorni) { return giorni == 1 ? u"il giorno è 1"_s : u"i giorni sono %1"_s.arg(giorni); }

// "al 63%", "all'8%": as it is spoken.
QString Al(int percento) {
    const bool vocale = percento == 1 || percento == 11 || QString::number(percento).startsWith(u'8');
    return (vocale ? u"all'%1%"_s : u"al %1%"_s).arg(percento);
}

QString ConLeSoste(int percento) { return percento == 0 ? u"senza soste"_s : u"con le soste "_s + Al(percento); }

QString NonInTempo(const Meta& meta) { return u"non si è a casa entro "_s + Testo(meta.scadenza->Ora()) + u'.'; }

QString PrimaMaiuscola(QString testo) { return testo.replace(0, 1, testo.first(1).toUpper()); }

QString Conta(int numero, const QString& uno, const QString& molti) {
    return u"%1 %2"_s.arg(QString::number(numero), numero == 1 ? uno : molti);
}

// A day that the one journey has and the other has not: the first thing that only the longer one is put off by.
QString GiornoInPiu(const Prova& sotto, const Prova& sopra, NumeroGiorno inizio, const TabellaCalcolo& tabella) {
    std::vector<Rinvio> comuni = sotto.rinvii;
    for (const Rinvio& rinvio : sopra.rinvii) {
        const auto stesso = std::find_if(comuni.begin(), comuni.end(), [&](const Rinvio& altro) {
            return altro.genere == rinvio.genere && altro.tappa == rinvio.tappa && altro.giorni == rinvio.giorni;
        });
        if (stesso != comuni.end()) {
            comuni.erase(stesso);
            continue;
        }
        const QString& luogo = tabella.righe[static_cast<std::size_t>(rinvio.tappa)].tappa.localita;
        switch (rinvio.genere) {
            case GenereRinvio::GiorniDiRiposo:
                return u"il riposo del %1° giorno"_s.arg(rinvio.data - inizio + 1);
            case GenereRinvio::ArrivoTardivo:
                return u"quello della sosta a %1, dove si arriva dopo la fine delle visite"_s.arg(luogo);
            case GenereRinvio::TraghettoPerso:
                return u"quello del traghetto per %1, che parte il giorno dopo"_s.arg(luogo);
            case GenereRinvio::SostaSuPiuGiorni:
                return u"quello della sosta a %1, che dura %2 giorni"_s.arg(luogo, QString::number(rinvio.giorni));
            default:
                break;
        }
    }
    return {};
}

// What takes its days whatever the stops are.
QString NonSiAccorciano(const Prova& prova, const TabellaCalcolo& tabella, const OrarioCorretto& orario) {
    std::vector<Tappa> tappe;
    int fini = 0;
    int fissati = 0;
    for (const RigaCalcolo& riga : tabella.righe) {
        tappe.push_back(riga.tappa);
        if (riga.fineGiorno) ++fini;
        if (riga.tappa.vincoli && (riga.tappa.vincoli->traghetto || riga.tappa.vincoli->arrivo)) ++fissati;
    }
    int riposi = 0;
    for (const Rinvio& rinvio : prova.rinvii) {
        if (rinvio.genere == GenereRinvio::GiorniDiRiposo) riposi += rinvio.giorni;
    }
    QStringList parti;
    const int guida = CalcolaKmTempiItinerario(tappe, orario, 0).giorniMinimi;
    if (guida > 0) parti += Conta(guida, u"giorno di guida"_s, u"giorni di guida"_s);
    if (riposi > 0) parti += Conta(riposi, u"giorno di riposo"_s, u"giorni di riposo"_s);
    if (fini > 0) parti += Conta(fini, u"fine giornata"_s, u"fini giornata"_s);
    if (fissati > 0) parti += Conta(fissati, u"orario fissato"_s, u"orari fissati"_s);
    return parti.isEmpty() ? QString() : u" Non si accorciano: "_s + parti.join(u", "_s) + u'.';
}

}  // namespace

std::optional<RicercaGiorni> CercaGiorni(const Meta& meta, const TabellaCalcolo& tabella, const OrarioCorretto& orario,
                                         Progress& progress) {
    const int voluti = meta.giorniAdeguamento;
    Provatore provatore(meta, tabella, orario, progress);
    RicercaGiorni ricerca;
    const int primo = provatore.Primo(voluti);
    if (const std::optional<int> esatto = provatore.Esatto(voluti, primo)) {
        const Prova& prova = provatore.Con(*esatto);
        ricerca.esatta = prova.proposta;
        ricerca.testo =
            PrimaMaiuscola(ConLeSoste(prova.proposta.percento)) + u' ' + GiorniSono(prova.proposta.giorni) + u'.';
    } else if (primo == 0 && !provatore.Con(0).inTempo) {
        ricerca.testo = u"Anche senza soste "_s + NonInTempo(meta) + NonSiAccorciano(provatore.Con(0), tabella, orario);
    } else if (primo == 0) {
        ricerca.sopra = provatore.Con(0).proposta;
        ricerca.testo = u"Anche senza soste "_s + GiorniSono(ricerca.sopra->giorni) + u'.' +
                        NonSiAccorciano(provatore.Con(0), tabella, orario);
    } else if (primo > kMassimoPercento) {
        ricerca.sotto = provatore.Con(kMassimoPercento).proposta;
        ricerca.testo = (tabella.totaleSoste > 0_cent ? u"Anche con le soste al %1% "_s.arg(kMassimoPercento)
                                                      : u"Non ci sono soste da allungare: "_s) +
                        GiorniSono(ricerca.sotto->giorni) + u'.';
    } else if (!provatore.Con(primo).inTempo) {
        const Prova& sotto = provatore.Con(primo - 1);
        ricerca.sotto = sotto.proposta;
        ricerca.finoAllaScadenza = true;
        ricerca.testo = PrimaMaiuscola(ConLeSoste(primo - 1)) + u' ' + GiorniSono(sotto.proposta.giorni) + u": "_s +
                        Al(primo) + u' ' + NonInTempo(meta) + NonSiAccorciano(sotto, tabella, orario);
    } else {
        const Prova& sotto = provatore.Con(primo - 1);
        const Prova& sopra = provatore.Con(primo);
        const QString inPiu = GiornoInPiu(sotto, sopra, *meta.dataInizio, tabella);
        ricerca.sotto = sotto.proposta;
        ricerca.sopra = sopra.proposta;
        ricerca.testo = PrimaMaiuscola(ConLeSoste(primo - 1)) + u' ' + GiorniSono(sotto.proposta.giorni) +
                        u", %1 sono %2"_s.arg(Al(primo)).arg(sopra.proposta.giorni) +
                        (inPiu.isEmpty() ? u"."_s : u": il giorno in più è %1."_s.arg(inPiu)) +
                        NonSiAccorciano(sotto, tabella, orario);
    }
    if (provatore.Interrotto()) return std::nullopt;
    return ricerca;
}

}  // namespace cronovia
