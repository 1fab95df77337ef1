// SPDX-License-Identifier: GPL-3.0-or-later
// Localities with directions: the place or the road, the direction, the distance, further columns.
#include <algorithm>
#include <utility>

#include "calendar/testo.h"
#include "exchange/percorsi/lettore_percorso.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kLocalita = 1;
constexpr int kDirezione = 2;
constexpr int kDistanza = 3;
constexpr qsizetype kMassimoInsieme = 24;  // of a road and a locality side by side

// A mark of two characters may stand before the first title.
bool ConLocalita(const CampiPercorso& colonne) {
    const QString titolo = colonne[kLocalita].toLower();
    return (titolo == u"località" || titolo.mid(2) == u"località") &&
           colonne[kDirezione].compare("direzione"_L1, Qt::CaseInsensitive) == 0 &&
           colonne[kDistanza].compare("distanza"_L1, Qt::CaseInsensitive) == 0;
}

// The column of the kilometres so far; 0, which is always empty, when there is none.
int ColonnaProgressivi(const CampiPercorso& intestazione) {
    for (int numero = kDistanza + 1; numero <= CampiPercorso::kMassimo; ++numero) {
        if (intestazione[numero].compare("posizione opposta"_L1, Qt::CaseInsensitive) == 0) return numero;
    }
    return 0;
}

struct LocalitaStrada {
    QString localita;
    QString strada;
};

bool Lettera(QChar c) { return c.isLetter(); }

// The text without that part of it.
QString Senza(const QString& testo, qsizetype inizio, qsizetype quanti) {
    return (testo.first(inizio) + u' ' + testo.sliced(inizio + quanti)).simplified();
}

// What stands between the first parentheses, blanks left out; null without them. The closing one may be missing.
QStringView TraParentesi(QStringView testo) {
    const qsizetype aperta = testo.indexOf(u'(');
    return aperta < 0 ? QStringView() : Fino(testo.sliced(aperta + 1), u')').trimmed();
}

// A field that begins with a road in parentheses, or with the "-" of a road, or is a locality.
LocalitaStrada SenzaAggiunte(const QString& campo) {
    if (campo.startsWith(u'(')) {
        const qsizetype chiusa = campo.indexOf(u')');
        const QString resto = chiusa < 0 ? QString() : campo.sliced(chiusa + 1);
        return {Fino(resto, u'(').trimmed().toString(), TraParentesi(campo).toString()};
    }
    if (!campo.startsWith(u'-')) return {campo, {}};
    const QString resto = campo.sliced(1).trimmed();
    if (!resto.contains(u'(')) return {{}, resto};
    const QStringView dentro = TraParentesi(resto);
    return {Fino(resto, u'(').trimmed().toString(), TuttoMaiuscolo(dentro) ? dentro.toString() : QString()};
}

// Takes a number out of the locality, with up to three capitals before it and letters behind it: "A14", "E45/E55",
// "67bis". In parentheses with nothing but capitals, all of them is taken.
void TogliNumero(LocalitaStrada& parti) {
    QString& testo = parti.localita;
    const auto* prima = std::find_if(testo.cbegin(), testo.cend(), &Cifra);
    if (prima == testo.cend()) return;
    const auto* inizio = prima;
    while (inizio != testo.cbegin() && (inizio[-1] == u'/' || (inizio[-1] >= u'A' && inizio[-1] <= u'Z'))) --inizio;
    const bool parola = inizio != testo.cbegin() && Lettera(inizio[-1]);
    if (parola || prima - inizio > 3) inizio = prima;
    const auto* fine = std::find_if(prima, testo.cend(), [](QChar c) { return !Cifra(c) && !Lettera(c) && c != u'/'; });
    qsizetype da = inizio - testo.cbegin();
    qsizetype quanti = fine - inizio;
    const qsizetype aperta = testo.lastIndexOf(u'(', da);
    const qsizetype chiusa = testo.indexOf(u')', std::max<qsizetype>(0, aperta));
    if (aperta >= 0 && chiusa > da && TuttoMaiuscolo(QStringView(testo).sliced(aperta, chiusa - aperta))) {
        da = aperta;
        quanti = chiusa + 1 - aperta;
    }
    if (parti.strada.isEmpty()) parti.strada = testo.sliced(da, quanti);
    testo = Senza(testo, da, quanti);
}

// "REPUBBLICA CECA" is too long beside a road: "REPUBBLIC. CECA".
QString Abbrevia(const QString& localita) {
    constexpr QStringView kRepubblica = u"REPUBBL";
    const qsizetype indice = Trova(localita, kRepubblica);
    if (indice < 0) return localita;
    const qsizetype taglio = std::min(indice + kRepubblica.size() + 2, localita.size());
    const QStringView resto = DopoLaPrimaParola(QStringView(localita).sliced(taglio));
    return (localita.first(taglio) + u". "_s + resto.toString()).trimmed();
}

LocalitaStrada EstraeTappaStrada(const CampiPercorso& colonne, const QString& campo) {
    LocalitaStrada parti = SenzaAggiunte(campo);
    TogliNumero(parti);
    parti.localita = Fino(parti.localita, u',').trimmed().toString();
    const QString& direzione = colonne[kDirezione];
    if (parti.strada.isEmpty() && !direzione.isEmpty() && Cifra(direzione.back())) {
        parti.strada = direzione.sliced(direzione.lastIndexOf(u' ') + 1);
    }
    if (parti.strada.size() + parti.localita.size() > kMassimoInsieme) {
        parti.localita = Fino(parti.localita, u'(').trimmed().toString();
    }
    parti.localita = Abbrevia(parti.localita);
    if (parti.strada.contains(u'(')) parti.strada = TraParentesi(parti.strada).toString();
    return parti;
}

// The rest of the text behind a word and a blank; null when it does not hold the word.
QString Dopo(const QString& testo, QStringView parola) {
    const QString conBlank = u' ' + parola.toString() + u' ';
    const qsizetype indice = Trova(u' ' + testo, conBlank);
    return indice < 0 ? QString() : testo.mid(indice + conBlank.size() - 1);
}

// The place that a direction names when the line has no locality of its own.
QString DallaDirezione(const QString& direzione) {
    const qsizetype confine = Trova(direzione, u"confine");
    if (confine >= 0) {
        const QString oltre = Dopo(direzione.sliced(confine), u"verso");
        const QString paese = oltre.isEmpty() ? Dopo(direzione, u"verso") : oltre;
        if (!paese.isEmpty()) return u"Ingresso in "_s + paese;
    }
    const QString meta = Dopo(direzione, u"direzione di");
    return meta.isEmpty() ? QString() : u"Direzione "_s + meta;
}

class Localita : public LettorePercorso {
  public:
    Localita(const CampiPercorso& intestazione, DestinazioneTappe destinazione)
        : inCorso_(std::move(destinazione)), colonnaProgressivi_(ColonnaProgressivi(intestazione)) {}

    void Leggi(const CampiPercorso& colonne) override {
        if (ConLocalita(colonne)) {
            colonnaProgressivi_ = ColonnaProgressivi(colonne);
            return;
        }
        const QString& km = colonne[colonnaProgressivi_];
        if (Contiene(km, u"KM")) inCorso_.Avanza(std::min(KmConUnita(km), TappaInCorso::kMassimoKm));
        if (Contiene(colonne[kDirezione], u"traghetto")) inCorso_.SiImbarca();
        const bool entrato = Esamina(colonne, colonne[kLocalita]);
        if (!entrato && Contiene(colonne[kDirezione], u"confine")) Esamina(colonne, {});
    }

  private:
    // True when the place is the border itself.
    bool Esamina(const CampiPercorso& colonne, const QString& campo) {
        LocalitaStrada parti = EstraeTappaStrada(colonne, campo);
        if (parti.localita.isEmpty()) parti.localita = DallaDirezione(colonne[kDirezione]);
        if (!parti.strada.isEmpty()) inCorso_.Percorre(parti.strada, KmConUnita(colonne[kDistanza]));
        const bool entrato = Contiene(parti.localita, u"ingresso");
        const bool lontana = inCorso_.AlVia() || inCorso_.KmDallUltimaTappa() >= 1;
        if (entrato || (lontana && inCorso_.Nuova(parti.localita))) inCorso_.Arriva(parti.localita);
        return entrato;
    }

    TappaInCorso inCorso_;
    int colonnaProgressivi_;
};

}  // namespace

std::unique_ptr<LettorePercorso> LettoreLocalita(const CampiPercorso& intestazione, DestinazioneTappe destinazione) {
    if (!ConLocalita(intestazione)) return nullptr;
    return std::make_unique<Localita>(intestazione, std::move(destinazione));
}

}  // namespace cronovia
