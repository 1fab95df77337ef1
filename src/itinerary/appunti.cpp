// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/appunti.h"

#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <array>
#include <optional>

#include "interaction/failure.h"
#include "store/schema.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

enum class Cella { Tappa, Strada, Km, Tipo, Sosta };
constexpr std::size_t kCelle = 5;

constexpr int kMassimoKmDiRiga = 999;
constexpr QStringView kInizioFormula = u"=+-@";
constexpr QStringView kDaIndicare = u"da indicare";

// The first name is the one that is written.
const std::array<QStringList, kCelle>& Nomi() {
    static const std::array<QStringList, kCelle> nomi = {{
        {u"Tappa"_s, u"Località"_s, u"Localita"_s},
        {u"Num. Strada"_s, u"Strada"_s, u"N.Strada"_s, u"N.Str"_s},
        {u"Km."_s, u"Km"_s, u"Distanza"_s},
        {u"Ts"_s, u"Tipo strada"_s, u"Tipo"_s},
        {u"Sosta"_s, u"Itinerario"_s},
    }};
    return nomi;
}

QString Protetta(QString cella) {
    for (QChar& c : cella) {
        if (c.category() == QChar::Other_Control) c = u' ';
    }
    return !cella.isEmpty() && kInizioFormula.contains(cella.front()) ? u'\'' + cella : cella;
}

QString Letta(QString cella) {
    cella = cella.trimmed();
    if (cella.size() > 1 && cella.startsWith(u'"') && cella.endsWith(u'"')) {
        cella = cella.mid(1, cella.size() - 2).replace(u"\"\""_s, u"\""_s).trimmed();
    }
    const bool protetta = cella.size() > 1 && cella.front() == u'\'' && kInizioFormula.contains(cella[1]);
    return protetta ? cella.mid(1) : cella;
}

QStringList Celle(const QString& riga) {
    QStringList celle;
    for (const QString& cella : riga.split(u'\t')) celle += Letta(cella);
    return celle;
}

// Where each cell stands in a line; nothing where there is no such column.
using Disposizione = std::array<std::optional<qsizetype>, kCelle>;

std::optional<Disposizione> LeggiIntestazione(const QStringList& celle) {
    Disposizione posti;
    for (std::size_t i = 0; i < kCelle; ++i) {
        for (const QString& nome : Nomi()[i]) {
            for (qsizetype colonna = 0; !posti[i] && colonna < celle.size(); ++colonna) {
                if (celle[colonna].compare(nome, Qt::CaseInsensitive) == 0) posti[i] = colonna;
            }
        }
    }
    return posti[static_cast<std::size_t>(Cella::Tappa)] ? std::optional(posti) : std::nullopt;
}

// One line of the text, whose faults are told with its number.
class RigaDegliAppunti {
  public:
    RigaDegliAppunti(const QStringList& celle, const Disposizione& posti, int numero)
        : celle_(celle), posti_(posti), numero_(numero) {}

    [[nodiscard]] Tappa Letta(bool prima) const {
        Tappa tappa;
        tappa.localita = Nome(Cella::Tappa, itinerari::Localita, 1);
        if (tappa.localita.isEmpty()) Rifiuta(u"manca la località"_s);
        tappa.numStrada = Nome(Cella::Strada, itinerari::NomeStrada, 0);
        MettiSosta(tappa);
        MettiKm(tappa, prima);
        MettiTipo(tappa);
        return tappa;
    }

  private:
    [[nodiscard]] QString Testo(Cella cella) const {
        const auto& posto = posti_[static_cast<std::size_t>(cella)];
        return posto ? celle_.value(*posto) : QString();
    }
    [[noreturn]] void Rifiuta(const QString& perche) const {
        throw Failure(u"Non si può incollare: riga %1, %2."_s.arg(numero_).arg(perche));
    }
    // A locality is stored one character shorter than its field.
    [[nodiscard]] QString Nome(Cella cella, itinerari::Field campo, int meno) const {
        QString nome = Testo(cella).normalized(QString::NormalizationForm_C).toUpper();
        const int larghezza = Width(Table::Itinerari, campo) - meno;
        if (nome.size() > larghezza) Rifiuta(u"«%1» ha più di %2 caratteri"_s.arg(nome).arg(larghezza));
        return nome;
    }
    void MettiSosta(Tappa& tappa) const {
        static const QRegularExpression forma(u"^(\\*?)(?:(\\d{1,2}):(\\d{1,2}):(\\d{2}))?$"_s);
        const QString testo = Testo(Cella::Sosta);
        const auto trovata = forma.match(testo);
        if (!trovata.hasMatch() || trovata.captured(3).toInt() > 23 || trovata.captured(4).toInt() > 59) {
            Rifiuta(u"la sosta «%1» non è scritta come gg:hh:mm"_s.arg(testo));
        }
        tappa.fineGiorno = !trovata.captured(1).isEmpty();
        tappa.sosta = {trovata.captured(2).toInt(), trovata.captured(3).toInt(), trovata.captured(4).toInt()};
    }
    void MettiKm(Tappa& tappa, bool prima) const {
        const QString testo = Testo(Cella::Km);
        const bool taciuti = testo.isEmpty() && !prima && tappa.SenzaSosta() && !tappa.Traghetto();
        tappa.kmDaIndicare = taciuti || testo.compare(kDaIndicare, Qt::CaseInsensitive) == 0;
        if (tappa.kmDaIndicare || testo.isEmpty()) return;
        bool numero = false;
        tappa.km = testo.toInt(&numero);
        if (!numero || tappa.km < 0 || tappa.km > kMassimoKmDiRiga) {
            Rifiuta(u"i chilometri «%1» non sono un numero da 0 a %2"_s.arg(testo).arg(kMassimoKmDiRiga));
        }
    }
    void MettiTipo(Tappa& tappa) const {
        const QString testo = Testo(Cella::Tipo).left(1).toUpper();
        if (!testo.isEmpty() && !LeggiTipoStrada(testo)) {
            Rifiuta(u"il tipo di strada «%1» non è A, S, P o L"_s.arg(Testo(Cella::Tipo)));
        }
        const bool conStrada = tappa.km > 0 || tappa.kmDaIndicare;
        if (conStrada) tappa.tipo = testo.isEmpty() ? TipoStrada::Locale : LeggiTipoStrada(testo);
    }

    const QStringList& celle_;
    const Disposizione& posti_;
    int numero_;
};

}  // namespace

QString TestoPerAppunti(std::span<const Tappa> righe) {
    QStringList intestazione;
    for (const QStringList& nomi : Nomi()) intestazione += nomi.first();
    QStringList testo = {intestazione.join(u'\t')};
    for (const Tappa& tappa : righe) {
        if (tappa.localita.trimmed().isEmpty()) continue;
        const QString km = tappa.kmDaIndicare ? kDaIndicare.toString() : QString::number(tappa.km);
        const QString sosta = tappa.SenzaSosta()    ? QString()
                              : tappa.sosta.Nulla() ? u"*"_s
                                                    : TestoSosta(tappa.sosta, tappa.fineGiorno);
        testo +=
            QStringList{Protetta(tappa.localita), Protetta(tappa.numStrada), km, LetteraTipoStrada(tappa.tipo), sosta}
                .join(u'\t');
    }
    return testo.join(u'\n') + u'\n';
}

RigheItinerario LeggiAppunti(const QString& testo) {
    Disposizione posti = {0, 1, 2, 3, 4};
    RigheItinerario tappe;
    int numero = 0;
    bool prima = true;
    for (const QString& riga : testo.split(QRegularExpression(u"\r\n|\r|\n"_s))) {
        ++numero;
        if (riga.trimmed().isEmpty()) continue;
        const QStringList celle = Celle(riga);
        const std::optional<Disposizione> intestazione = prima ? LeggiIntestazione(celle) : std::nullopt;
        prima = false;
        if (intestazione) {
            posti = *intestazione;
        } else {
            tappe.push_back(RigaDegliAppunti(celle, posti, numero).Letta(tappe.empty()));
        }
    }
    if (tappe.empty()) throw Failure(u"Non si può incollare: negli appunti non ci sono tappe."_s);
    return tappe;
}

}  // namespace cronovia
