// SPDX-License-Identifier: GPL-3.0-or-later
// Instructions with clock times: the hour, the kilometres so far, the instruction, further columns.
#include <algorithm>
#include <utility>

#include "exchange/percorsi/lettore_percorso.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kKm = 2;
constexpr int kIstruzione = 3;
constexpr QStringView kVicino = u"vicino";

bool ConIstruzioni(const CampiPercorso& colonne) {
    return colonne[1].endsWith("ora"_L1, Qt::CaseInsensitive) &&
           colonne[kKm].compare("km"_L1, Qt::CaseInsensitive) == 0 &&
           colonne[kIstruzione].compare("istruzioni"_L1, Qt::CaseInsensitive) == 0;
}

// The further column of the distances on each road; without one, the kilometres so far take its place.
int ColonnaDistanza(const CampiPercorso& intestazione) {
    for (int numero = kIstruzione + 1; numero <= CampiPercorso::kMassimo; ++numero) {
        if (intestazione[numero].startsWith("km"_L1, Qt::CaseInsensitive)) return numero;
    }
    return kKm;
}

bool Uguali(QStringView a, QStringView b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

// The text without the commas and points that may end it.
QStringView SenzaPunteggiatura(QStringView testo) {
    while (!testo.isEmpty() && QStringView(u",;.:").contains(testo.back())) testo.chop(1);
    return testo;
}

QStringView Partenza(QStringView istruzione) {
    const qsizetype vicino = Trova(istruzione, kVicino);
    return vicino < 0 ? DopoLaPrimaParola(istruzione) : istruzione.mid(vicino + kVicino.size() + 3);  // "vicino a "
}

QStringView Arrivo(QStringView istruzione) {
    const qsizetype vicino = Trova(istruzione, kVicino);
    if (vicino >= 0) istruzione = istruzione.mid(vicino + kVicino.size() + 1);
    return SenzaPunteggiatura(PrimaParola(DopoLaPrimaParola(istruzione)));
}

QStringView NomeTraghetto(QStringView istruzione) {
    constexpr QStringView kSu = u" su ";
    const qsizetype asterisco = istruzione.indexOf(u'*');
    const QStringView nome = asterisco < 0 ? QStringView() : istruzione.mid(asterisco + 4);
    if (nome.contains(u',')) return Fino(nome, u',').trimmed();
    const qsizetype su = Trova(istruzione, kSu);
    return su < 0 ? QStringView() : Fino(istruzione.sliced(su + kSu.size()), u'(').trimmed();
}

class Istruzioni : public LettorePercorso {
  public:
    Istruzioni(const CampiPercorso& intestazione, DestinazioneTappe destinazione)
        : inCorso_(std::move(destinazione)), colonnaDistanza_(ColonnaDistanza(intestazione)) {}

    void Leggi(const CampiPercorso& colonne) override {
        if (ConIstruzioni(colonne)) {
            colonnaDistanza_ = ColonnaDistanza(colonne);
            return;
        }
        QStringView istruzione = colonne[kIstruzione];
        if (Uguali(PrimaParola(istruzione), kVicino)) istruzione = DopoLaPrimaParola(istruzione);
        const QStringView localita = Localita(istruzione, colonne[kKm]);
        if (inCorso_.Nuova(localita)) inCorso_.Arriva(localita);
        RaccogliStrada(istruzione, colonne[colonnaDistanza_]);
    }

  private:
    // The place that an instruction names as the end of a leg, if any; its kilometres are taken over.
    QStringView Localita(QStringView istruzione, QStringView km) {
        const QStringView prima = PrimaParola(istruzione);
        if (!partito_ && Uguali(prima.left(8), u"partenza")) {
            partito_ = true;
            return Partenza(istruzione);
        }
        const bool traghetto = Contiene(istruzione, u"controllo orari");
        const QStringView localita = FineTratta(SenzaPunteggiatura(prima), istruzione, traghetto);
        if (localita.isNull()) return localita;
        if (const auto valore = LeggiKm(km)) inCorso_.Avanza(std::min(*valore, TappaInCorso::kMassimoKm));
        return localita;
    }

    // Null for an instruction that ends no leg.
    QStringView FineTratta(QStringView prima, QStringView istruzione, bool traghetto) {
        if (Uguali(prima, u"arrivo")) return Arrivo(istruzione);
        if (Uguali(prima, u"a")) return Fino(istruzione.mid(2), u',');
        if (Uguali(prima, u"presso")) return Fino(istruzione.mid(7), u',');
        if (Uguali(prima, u"ingresso")) return istruzione;
        if (!traghetto) return {};
        const QStringView nome = NomeTraghetto(istruzione);
        if (!nome.isEmpty()) inCorso_.SiImbarca();
        return nome;
    }

    void RaccogliStrada(QStringView istruzione, QStringView distanza) {
        constexpr QStringView kSu = u" su ";
        const qsizetype su = Trova(istruzione, kSu);
        if (su < 0) return;
        const QStringView strada = SenzaPunteggiatura(PrimaParola(istruzione.sliced(su + kSu.size())));
        if (!strada.isEmpty() && TuttoMaiuscolo(strada)) inCorso_.Percorre(strada.toString(), KmConUnita(distanza));
    }

    TappaInCorso inCorso_;
    int colonnaDistanza_;
    bool partito_ = false;
};

}  // namespace

std::unique_ptr<LettorePercorso> LettoreIstruzioni(const CampiPercorso& intestazione, DestinazioneTappe destinazione) {
    if (!ConIstruzioni(intestazione)) return nullptr;
    return std::make_unique<Istruzioni>(intestazione, std::move(destinazione));
}

}  // namespace cronovia
