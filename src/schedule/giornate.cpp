// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/giornate.h"

#include <algorithm>

#include "schedule/costi.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

const RigaCronovia& RigaDi(const Cronovia& cronovia, int riga) {
    return cronovia.righe[static_cast<std::size_t>(riga)];
}

bool SullaStrada(const RigaCronovia& riga) { return riga.genere == GenereRiga::Marcia && riga.verso; }

// Where the schedule ends: with its last moment, though nothing happens any more on that day.
NumeroGiorno UltimoGiorno(const Cronovia& cronovia, NumeroGiorno partenza) {
    NumeroGiorno ultimo = partenza;
    for (const RigaCronovia& riga : cronovia.righe) {
        if (ConMomento(riga.genere)) ultimo = std::max(ultimo, riga.data);
    }
    return ultimo;
}

class Calendario {
  public:
    Calendario(const Cronovia& cronovia, NumeroGiorno partenza) : cronovia_(cronovia), partenza_(partenza) {
        const int giorni = UltimoGiorno(cronovia, partenza) - partenza + 1;
        giornate_.resize(static_cast<std::size_t>(giorni));
        for (int i = 0; i < giorni; ++i) {
            giornate_[static_cast<std::size_t>(i)].numero = i + 1;
            giornate_[static_cast<std::size_t>(i)].data = partenza + i;
        }
    }

    void Righe() {
        NumeroGiorno giorno = partenza_;
        for (std::size_t i = 0; i < cronovia_.righe.size(); ++i) {
            const RigaCronovia& riga = cronovia_.righe[i];
            if (ConMomento(riga.genere)) giorno = riga.data;
            Giornata& giornata = Di(giorno);
            giornata.righe.push_back(static_cast<int>(i));
            giornata.km += riga.km;
        }
    }

    void Fasce() {
        for (const Fascia& fascia : cronovia_.fasce) {
            Giornata& giornata = Di(fascia.data);
            Somma(fascia, giornata);
            giornata.notte = LuogoDellaRiga(cronovia_, fascia.riga);
            giornata.inViaggio = SullaStrada(RigaDi(cronovia_, fascia.riga));
        }
        Traghetti();
    }

    void Rinvii() {
        for (const Rinvio& rinvio : cronovia_.rinvii) {
            Di(rinvio.data).rinvii.push_back(rinvio);
            if (rinvio.genere != GenereRinvio::GiorniDiRiposo) continue;
            for (int i = 0; i < rinvio.giorni; ++i) {
                Giornata& giornata = Di(rinvio.data + i);
                giornata.riposo = giornata.notte.isEmpty();
            }
        }
    }

    // A day on which nothing happens begins and ends where the one before ended.
    void Luoghi() {
        QString luogo = cronovia_.tabella.righe.front().tappa.localita;
        bool inViaggio = false;
        for (Giornata& giornata : giornate_) {
            giornata.risveglio = luogo;
            if (giornata.notte.isEmpty()) {
                giornata.notte = luogo;
                giornata.inViaggio = inViaggio;
            }
            luogo = giornata.notte;
            inViaggio = giornata.inViaggio;
        }
        giornate_.back().ultima = true;
    }

    std::vector<Giornata> Finite() { return std::move(giornate_); }

  private:
    Giornata& Di(NumeroGiorno giorno) { return giornate_[static_cast<std::size_t>(giorno - partenza_)]; }

    // A ferry that goes on the next morning.
    void Traghetti() {
        const auto& fasce = cronovia_.fasce;
        for (std::size_t i = 1; i < fasce.size(); ++i) {
            if (fasce[i - 1].genere == GenereFascia::Traghetto && fasce[i].genere == GenereFascia::Traghetto &&
                fasce[i - 1].riga == fasce[i].riga) {
                Di(fasce[i - 1].data).notteInTraghetto = true;
            }
        }
    }

    static void Somma(const Fascia& fascia, Giornata& giornata) {
        const Centesimi tempo = fascia.a - fascia.da;
        switch (fascia.genere) {
            case GenereFascia::Marcia:
                giornata.guida += tempo;
                if (!giornata.partenza) giornata.partenza = fascia.da;
                giornata.arrivo = fascia.a;
                break;
            case GenereFascia::Visita:
                giornata.visite += tempo;
                break;
            case GenereFascia::Traghetto:
                giornata.traghetto += tempo;
                break;
            case GenereFascia::Pranzo:
                giornata.pranzo = true;
                break;
            case GenereFascia::Cena:
                giornata.cena = true;
                break;
            case GenereFascia::Riposo:
                ++giornata.riposi;
                break;
            case GenereFascia::Attesa:
                giornata.attesa += tempo;
                break;
        }
    }

    const Cronovia& cronovia_;
    NumeroGiorno partenza_;
    std::vector<Giornata> giornate_;
};

}  // namespace

std::vector<Giornata> Giornate(const Cronovia& cronovia, NumeroGiorno partenza) {
    if (cronovia.righe.empty()) return {};
    Calendario calendario(cronovia, partenza);
    calendario.Righe();
    calendario.Fasce();
    calendario.Rinvii();
    calendario.Luoghi();
    std::vector<Giornata> giornate = calendario.Finite();
    MettiCosti(cronovia, giornate);
    return giornate;
}

QString LuogoDellaRiga(const Cronovia& cronovia, int riga) {
    const RigaCronovia& sua = RigaDi(cronovia, riga);
    const QString& localita = cronovia.tabella.righe[static_cast<std::size_t>(sua.tappa)].tappa.localita;
    return SullaStrada(sua) ? u"verso "_s + localita : localita;
}

std::optional<Centesimi> MargineRientro(const RigaCronovia& riga) {
    if (!riga.limite) return std::nullopt;
    return kGiornoOrologio * static_cast<float>(riga.limite->data - riga.data) + riga.limite->ora - riga.ora;
}

}  // namespace cronovia
