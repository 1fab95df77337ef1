// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/celle_tappa.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>

#include "calendar/testo.h"
#include "itinerary/modifiche.h"
#include "store/schema.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMassimiKmDellaCella = 999;

std::vector<QStringList> TuttiINomi() {
    std::vector<QStringList> nomi = {
        {u"Tappa"_s, u"Località"_s, u"Localita"_s},
        {u"Num. Strada"_s, u"Strada"_s, u"N.Strada"_s, u"N.Str"_s, u"NomeStrada"_s},
        {u"Km."_s, u"Km"_s, u"Distanza"_s, u"Chilometri"_s},
        {u"Ts"_s, u"Tipo strada"_s, u"Tipo"_s, u"TipoStrada"_s},
        {u"Sosta"_s, u"Itinerario"_s, u"TempoSosta"_s},
        {u"FineGiorno"_s, u"Fine giorno"_s},
        {Definition(Table::Stime).fields[stime::KmStimati].name},
    };
    const std::vector<FieldDefinition>& campi = Definition(Table::Vincoli).fields;
    for (std::size_t i = kPrimoDato; i < campi.size(); ++i) nomi.push_back({campi[i].name});
    return nomi;
}

std::size_t CampoDeiVincoli(int cella) { return static_cast<std::size_t>(cella) - cella::Vincoli + kPrimoDato; }

// Fields of `Vincoli` that are read together, and how they are written.
struct GruppoDiVincoli {
    int primo;
    int ultimo;
    const char16_t* forma;
};
constexpr std::array<GruppoDiVincoli, 10> kGruppi = {{
    {vincoli::TraghettoOra, vincoli::Imbarco,
     u"un traghetto vuole l'ora di partenza (hh:mm, con la data gg/mm/aaaa se serve), la navigazione (gg:hh:mm, fino a "
     "9 giorni) e, se c'è, l'imbarco (hh:mm prima)"},
    {vincoli::NonPrimaOra, vincoli::NonDopoData,
     u"le ore d'arrivo si scrivono hh:mm, con la data gg/mm/aaaa se serve, la prima non dopo l'ultima"},
    {vincoli::VisiteDa, vincoli::VisiteA, u"le visite vogliono due ore hh:mm, l'apertura prima della chiusura"},
    {vincoli::Nota, vincoli::Nota, u"il testo ha più di 500 caratteri, o caratteri di controllo"},
    {vincoli::Telefono, vincoli::Telefono, u"il testo ha più di 30 caratteri, o caratteri di controllo"},
    {vincoli::Link, vincoli::Link, u"il testo ha più di 200 caratteri, o caratteri di controllo"},
    {vincoli::Prenotazione, vincoli::Prenotazione, u"il testo ha più di 40 caratteri, o caratteri di controllo"},
    {vincoli::PrezzoTraghetto, vincoli::PrezzoTraghetto, u"il prezzo si scrive come 45,50, fino a 99999,99"},
    {vincoli::PrezzoNotte, vincoli::PrezzoNotte, u"il prezzo si scrive come 45,50, fino a 99999,99"},
    {vincoli::PrezzoIngresso, vincoli::PrezzoIngresso, u"il prezzo si scrive come 45,50, fino a 99999,99"},
}};
static_assert(kGruppi.back().ultimo == vincoli::kCampi - 1, "every field is in a group");

// The cells of one stage on their way into values.
class LettoreCelle {
  public:
    LettoreCelle(const CelleTappa& celle, Scritte scritte) : celle_(celle), scritte_(scritte) {}

    [[nodiscard]] Tappa Letta(bool partenza) const {
        Tappa tappa;
        tappa.localita = Nome(cella::Localita, itinerari::Localita, 1);
        if (tappa.localita.isEmpty()) Rifiuta(cella::Localita, u"manca la località"_s);
        tappa.numStrada = Nome(cella::Strada, itinerari::NomeStrada, 0);
        tappa.vincoli = LeggiVincoliDalleCelle();
        MettiSosta(tappa);
        MettiKm(tappa, partenza);
        MettiTipo(tappa);
        return tappa;
    }

  private:
    [[nodiscard]] QString Testo(int cella) const { return celle_.value(cella).trimmed(); }
    [[noreturn]] static void Rifiuta(int cella, const QString& perche) { throw CellaRifiutata{cella, perche}; }

    // A locality is stored one character shorter than its field.
    [[nodiscard]] QString Nome(int cella, itinerari::Field campo, int meno) const {
        const QString testo = Testo(cella);
        QString nome =
            scritte_ == Scritte::DaCronovia ? testo : testo.normalized(QString::NormalizationForm_C).toUpper();
        const int larghezza = Width(Table::Itinerari, campo) - meno;
        if (nome.size() > larghezza) Rifiuta(cella, u"«%1» ha più di %2 caratteri"_s.arg(nome).arg(larghezza));
        if (HaCaratteriDiControllo(nome)) Rifiuta(cella, u"«%1» ha caratteri di controllo"_s.arg(Visibile(nome)));
        return nome;
    }
    void MettiSosta(Tappa& tappa) const {
        static const QRegularExpression forma(u"^(\\*?)(?:(?:(\\d{1,2}):)?(\\d{1,2}):(\\d{2}))?$"_s);
        const QString testo = Testo(cella::Sosta);
        const auto trovata = forma.match(testo);
        if (!trovata.hasMatch() || trovata.captured(3).toInt() > 23 || trovata.captured(4).toInt() > 59) {
            Rifiuta(cella::Sosta, u"la sosta «%1» non è scritta come gg:hh:mm o hh:mm, con ore fino a 23"_s.arg(testo));
        }
        tappa.sosta = {trovata.captured(2).toInt(), trovata.captured(3).toInt(), trovata.captured(4).toInt()};
        tappa.fineGiorno = !trovata.captured(1).isEmpty() || FineGiorno();
    }
    [[nodiscard]] bool FineGiorno() const {
        static const QStringList si = {u"1"_s, u"sì"_s, u"si"_s, u"*"_s};
        static const QStringList no = {QString(), u"0"_s, u"no"_s};
        const QString testo = Testo(cella::FineGiorno).toLower();
        if (!si.contains(testo) && !no.contains(testo)) Rifiuta(cella::FineGiorno, u"si scrive sì o no"_s);
        return si.contains(testo);
    }
    void MettiKm(Tappa& tappa, bool partenza) const {
        const QString testo = Testo(cella::Km);
        const bool superflui = scritte_ == Scritte::DaCronovia || partenza || !tappa.SenzaSosta() || tappa.Traghetto();
        tappa.kmDaIndicare =
            (testo.isEmpty() && !superflui) || testo == u'?' || testo.compare(kDaIndicare, Qt::CaseInsensitive) == 0;
        const int stimati = Chilometri(cella::KmStimati);
        if (tappa.kmDaIndicare) return;
        tappa.km = Chilometri(cella::Km);
        tappa.kmStimati = tappa.km > 0 && tappa.km == stimati;
    }
    [[nodiscard]] int Chilometri(int cella) const {
        const QString testo = Testo(cella);
        bool numero = testo.isEmpty();
        const int km = numero ? 0 : testo.toInt(&numero);
        if (!numero || km < 0 || km > kMassimiKmDellaCella) {
            Rifiuta(cella, u"i chilometri «%1» non sono un numero da 0 a %2"_s.arg(testo).arg(kMassimiKmDellaCella));
        }
        return km;
    }
    void MettiTipo(Tappa& tappa) const {
        const QString testo = Testo(cella::Tipo);
        const std::optional<TipoStrada> tipo = LeggiTipoStrada(testo.left(1).toUpper());
        if (!testo.isEmpty() && !tipo && scritte_ == Scritte::DaAltri)
            Rifiuta(cella::Tipo, u"il tipo di strada «%1» non è A, S, P o L"_s.arg(testo));
        const bool conStrada = tappa.km > 0 || tappa.kmDaIndicare;
        if (scritte_ == Scritte::DaCronovia)
            tappa.tipo = tipo;
        else if (conStrada)
            tappa.tipo = tipo.value_or(TipoStrada::Locale);
    }
    [[nodiscard]] VincoliTappa LeggiVincoliDalleCelle() const {
        std::vector<QString> valori(vincoli::kCampi);
        for (const GruppoDiVincoli& gruppo : kGruppi) {
            std::vector<QString> soli(vincoli::kCampi);
            for (int campo = gruppo.primo; campo <= gruppo.ultimo; ++campo) {
                const auto i = static_cast<std::size_t>(campo);
                valori[i] = soli[i] = Testo(campo - kPrimoDato + cella::Vincoli);
            }
            if (LeggiVincoli(soli).rifiutati > 0) RifiutaGruppo(gruppo);
        }
        return LeggiVincoli(valori).vincoli;
    }
    [[noreturn]] void RifiutaGruppo(const GruppoDiVincoli& gruppo) const {
        int campo = gruppo.primo;
        while (campo < gruppo.ultimo && Testo(campo - kPrimoDato + cella::Vincoli).isEmpty()) ++campo;
        Rifiuta(campo - kPrimoDato + cella::Vincoli, QString::fromUtf16(gruppo.forma));
    }

    const CelleTappa& celle_;
    Scritte scritte_;
};

// "2200" as "22:00" and "28062027" as "28/06/2027"; all else as it is.
QString ComeSiLegge(std::size_t campo, const QString& valore) {
    constexpr std::array<std::size_t, 6> ore = {vincoli::TraghettoOra, vincoli::Imbarco,  vincoli::NonPrimaOra,
                                                vincoli::NonDopoOra,   vincoli::VisiteDa, vincoli::VisiteA};
    constexpr std::array<std::size_t, 3> date = {vincoli::TraghettoData, vincoli::NonPrimaData, vincoli::NonDopoData};
    if (std::find(ore.begin(), ore.end(), campo) != ore.end()) {
        const std::optional<int> minuti = LeggiMinuti(valore);
        return minuti ? TestoMinuti(*minuti) : valore;
    }
    if (std::find(date.begin(), date.end(), campo) == date.end()) return valore;
    const std::optional<NumeroGiorno> giorno = LeggiDataScritta(valore);
    return giorno ? TestoData(*giorno) : valore;
}

}  // namespace

const QStringList& NomiDellaCella(int cella) {
    static const std::vector<QStringList> nomi = TuttiINomi();
    return nomi.at(static_cast<std::size_t>(cella));
}

std::optional<int> CellaDiNome(QStringView nome) {
    for (int cella = 0; cella < kCelle; ++cella) {
        for (const QString& suo : NomiDellaCella(cella)) {
            if (nome.compare(suo, Qt::CaseInsensitive) == 0) return cella;
        }
    }
    return std::nullopt;
}

Tappa LeggiTappa(const CelleTappa& celle, Scritte scritte, bool partenza) {
    return LettoreCelle(celle, scritte).Letta(partenza);
}

void RifiutaSenzaTratta(const Tappa& tappa, bool partenza) {
    if (tappa.Traghetto()) return;
    const CampiTappa campi{tappa.localita,   tappa.numStrada, tappa.km, tappa.tipo,        tappa.sosta,
                           tappa.fineGiorno, false,           true,     tappa.kmDaIndicare};
    const std::vector<Message> rifiuti = ControllaTappa(campi, partenza ? 1 : 2);
    if (!rifiuti.empty()) throw CellaRifiutata{cella::Km, rifiuti.front().text.section(u'!', 0, 0)};
}

CelleTappa CelleDellaTappa(const Tappa& tappa) {
    CelleTappa celle;
    celle[cella::Localita] = tappa.localita;
    celle[cella::Strada] = tappa.numStrada;
    celle[cella::Km] = tappa.kmDaIndicare ? kDaIndicare.toString() : QString::number(tappa.km);
    celle[cella::Tipo] = LetteraTipoStrada(tappa.tipo);
    celle[cella::Sosta] = Testo(tappa.sosta);
    celle[cella::FineGiorno] = tappa.fineGiorno ? u"1"_s : u"0"_s;
    if (tappa.kmStimati) celle[cella::KmStimati] = QString::number(tappa.km);
    const std::vector<QString> valori = ValoriDeiVincoli(tappa.vincoli.Valore());
    for (int cella = cella::Vincoli; cella < kCelle; ++cella) {
        const std::size_t campo = CampoDeiVincoli(cella);
        if (!valori[campo].isEmpty()) celle[cella] = ComeSiLegge(campo, valori[campo]);
    }
    return celle;
}

QString SenzaProtezione(const QString& testo) {
    static const QRegularExpression protetto(u"^'\\s*[=+@-]"_s);
    return protetto.match(testo).hasMatch() ? testo.mid(1) : testo;
}

}  // namespace cronovia
