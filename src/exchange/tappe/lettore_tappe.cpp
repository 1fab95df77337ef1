// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/tappe/lettore_tappe.h"

#include <QBuffer>
#include <algorithm>
#include <utility>
#include <vector>

#include "exchange/tappe/tappe_json.h"
#include "files/celle.h"
#include "files/righe_testo.h"
#include "interaction/failure.h"
#include "itinerary/celle_tappa.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The columns that only Cronovia's own tables have, and that are computed.
const QStringList& Calcolate() {
    static const QStringList calcolate = {u"Num."_s, u"Km/pr"_s, u"Tempo"_s, u"Guida"_s,         u"Gs"_s,
                                          u"Data"_s, u"Ore"_s,   u"Note"_s,  u"Limite ritorno"_s};
    return calcolate;
}

QChar SeparatoreDi(const QString& intestazione) {
    if (intestazione.contains(u'\t')) return u'\t';
    return intestazione.count(u';') >= intestazione.count(u',') ? u';' : u',';
}

struct ColonnaDiTappe {
    QString nome;
    std::optional<int> cella;
};

// The heading of a table and what follows from it.
class TabellaDiTappe {
  public:
    explicit TabellaDiTappe(const QStringList& intestazione) {
        for (const QString& nome : intestazione) Prendi(nome);
        if (!ConCella(cella::Localita)) {
            throw Failure(
                u"Riga 1: manca la colonna «Tappa». La prima riga dà i nomi delle colonne: Tappa, Num. Strada, Km., "
                "Ts, Sosta."_s);
        }
        propria_ = intestazione.contains(u"Km/pr"_s) && intestazione.contains(u"Num."_s);
    }

    [[nodiscard]] Tappa Leggi(const QStringList& celle, int riga, bool partenza) const {
        if (celle.size() > static_cast<qsizetype>(colonne_.size())) {
            throw Failure(
                u"Riga %1: ha %2 colonne, l'intestazione ne ha %3."_s.arg(riga).arg(celle.size()).arg(colonne_.size()));
        }
        CelleTappa della;
        for (std::size_t i = 0; i < colonne_.size(); ++i) {
            if (colonne_[i].cella) della[*colonne_[i].cella] = celle.value(static_cast<qsizetype>(i));
        }
        try {
            Tappa tappa = LeggiTappa(della, propria_ ? Scritte::DaCronovia : Scritte::DaAltri, partenza);
            if (!propria_) RifiutaSenzaTratta(tappa, partenza);
            return tappa;
        } catch (const CellaRifiutata& rifiutata) {
            throw Failure(
                u"Riga %1, colonna «%2»: %3."_s.arg(QString::number(riga), NomeDi(rifiutata.cella), rifiutata.perche));
        }
    }
    [[nodiscard]] const QStringList& Ignorate() const { return ignorate_; }

  private:
    void Prendi(const QString& nome) {
        const std::optional<int> cella = CellaDiNome(nome);
        if (cella && ConCella(*cella)) throw Failure(u"Riga 1: la colonna «%1» c'è due volte."_s.arg(nome));
        if (!cella && !nome.isEmpty() && !Calcolate().contains(nome)) ignorate_ += nome;
        colonne_.push_back({nome, cella});
    }
    [[nodiscard]] bool ConCella(int cella) const {
        return std::any_of(colonne_.begin(), colonne_.end(), [&](const auto& c) { return c.cella == cella; });
    }
    [[nodiscard]] QString NomeDi(int cella) const {
        for (const ColonnaDiTappe& colonna : colonne_) {
            if (colonna.cella == cella) return colonna.nome;
        }
        return NomiDellaCella(cella).first();
    }

    std::vector<ColonnaDiTappe> colonne_;
    QStringList ignorate_;
    bool propria_ = false;
};

// Blank lines are passed over, in whichever separator they are written.
bool SenzaCelle(const QStringList& celle) {
    return std::all_of(celle.begin(), celle.end(), [](const QString& cella) { return cella.isEmpty(); });
}

TappeLette LeggiTabella(QIODevice& device) {
    RigheTesto righe(device);
    std::optional<SpezzaCelle> spezzatore;
    std::optional<TabellaDiTappe> tabella;
    TappeLette lette;
    int inizio = 0;
    for (int numero = 1; righe.Avanza(); ++numero) {
        if (righe.TroppoLunga()) throw Failure(u"Riga %1: è troppo lunga."_s.arg(numero));
        if (!spezzatore) {
            if (righe.Testo().trimmed().isEmpty()) continue;
            const QChar separatore = SeparatoreDi(righe.Testo());
            spezzatore.emplace(separatore, !righe.Testo().contains(u"\tKm/pr\t"_s));
        }
        if (inizio == 0) inizio = numero;
        if (!spezzatore->Aggiungi(righe.Testo())) continue;
        QStringList celle = spezzatore->Prendi();
        for (QString& cella : celle) cella = SenzaProtezione(cella);
        const int riga = std::exchange(inizio, 0);
        if (!tabella) {
            tabella.emplace(celle);
        } else if (!SenzaCelle(celle)) {
            lette.tappe.push_back(tabella->Leggi(celle, riga, lette.tappe.empty()));
        }
    }
    if (inizio != 0) throw Failure(u"Riga %1: le virgolette aperte non si chiudono più."_s.arg(inizio));
    if (tabella) lette.ignorate = tabella->Ignorate();
    return lette;
}

bool SembraJson(const QByteArray& byte) {
    const QByteArray inizio = byte.left(64).trimmed();
    return inizio.startsWith('{') || inizio.startsWith('[');
}

}  // namespace

TappeLette LeggiTabellaTappe(QIODevice& device) {
    QByteArray byte = device.read(kMassimoFileTappe + 1);
    if (byte.size() > kMassimoFileTappe) throw Failure(u"Il file delle tappe è troppo grande: al massimo 32 MB."_s);
    TappeLette lette;
    if (SembraJson(byte)) {
        lette = LeggiTappeJson(byte);
    } else {
        QBuffer buffer(&byte);
        buffer.open(QIODevice::ReadOnly);
        lette = LeggiTabella(buffer);
    }
    if (lette.tappe.empty()) throw Failure(u"Nel file delle tappe non c'è nessuna tappa."_s);
    return lette;
}

}  // namespace cronovia
