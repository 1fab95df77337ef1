// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/soste/importa_soste.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <set>

#include "calendar/testo.h"
#include "interaction/failure.h"
#include "itinerary/itinerari.h"
#include "itinerary/posizioni.h"
#include "places/nomi.h"
#include "trips/mete.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr double kKmDoppione = 0.2;
constexpr double kKmItinerario = 5;        // so far a place to stay belongs to a locality of a journey
constexpr double kKmRepertorio = 40;       // and to a place that is known
constexpr double kKmDiLatitudine = 110.5;  // of latitude, the least there are

// Points by their latitude, so that those near one are found without a look at all of them.
class PuntiVicini {
  public:
    void Metti(const Posizione& posizione, const QString& nome) {
        punti_.emplace(posizione.latitudine, Punto{posizione, nome});
    }
    // The name of the nearest one within so many kilometres.
    [[nodiscard]] std::optional<QString> Vicino(const Posizione& posizione, double entroKm) const {
        std::optional<QString> vicino;
        const double fascia = entroKm / kKmDiLatitudine;
        const auto fine = punti_.upper_bound(posizione.latitudine + fascia);
        for (auto i = punti_.lower_bound(posizione.latitudine - fascia); i != fine; ++i) {
            const double distanza = DistanzaKm(i->second.posizione, posizione);
            if (distanza > entroKm || (vicino && distanza == entroKm)) continue;
            entroKm = distanza;
            vicino = i->second.nome;
        }
        return vicino;
    }

  private:
    struct Punto {
        Posizione posizione;
        QString nome;
    };
    std::multimap<double, Punto> punti_;
};

// The localities of all itineraries, where they are known to lie.
PuntiVicini LocalitaDegliItinerari(Archive& archive, Gazzettino& gazzettino, Progress& progress) {
    PuntiVicini punti;
    std::set<std::tuple<QString, double, double>> messe;
    const std::vector<MetaInElenco> mete = ElencoMete(archive, QualiMete::ConTappe);
    const PosizioniConfermate confermate(archive);
    for (std::size_t m = 0; m < mete.size(); ++m) {
        HeedStop(progress);
        progress.Advance(static_cast<double>(m), static_cast<double>(mete.size()));
        const std::vector<Tappa> tappe = TappeMemorizzate(archive, mete[m].codice);
        const std::vector<PosizioneTappa> dove = PosizioniDelViaggio(confermate, gazzettino, tappe, mete[m].nazione);
        for (std::size_t t = 0; t < tappe.size(); ++t) {
            if (!dove[t].Certa() || !dove[t].posizione || tappe[t].localita.isEmpty()) continue;
            const Posizione& posizione = *dove[t].posizione;
            if (messe.emplace(tappe[t].localita, posizione.latitudine, posizione.longitudine).second) {
                punti.Metti(posizione, tappe[t].localita);
            }
        }
    }
    return punti;
}

// The codes of the types that places to stay have.
constexpr int kPuntoSosta = 5;
constexpr int kConCarico = 6;
constexpr int kCampeggio = 7;
constexpr int kRistorante = 8;
constexpr int kGpl = 9;

struct ParolaChiave {
    QStringView parola;  // blanks at its ends are the ends of words
    int tipo;
};

// The first one that a text has decides: what a camper is called stands before the sites that share its name.
constexpr std::array<ParolaChiave, 41> kParole = {{
    {u" camping car", kPuntoSosta},
    {u" campingcar", kPuntoSosta},
    {u" campegg", kCampeggio},
    {u" camping", kCampeggio},
    {u" campsite", kCampeggio},
    {u" campground", kCampeggio},
    {u" agricamp", kCampeggio},
    {u" carico", kConCarico},
    {u" scarico", kConCarico},
    {u" camper service", kConCarico},
    {u" camperservice", kConCarico},
    {u" area attrezzata", kConCarico},
    {u" dump", kConCarico},
    {u" cs ", kConCarico},
    {u" c s ", kConCarico},
    {u" entsorgung", kConCarico},
    {u" vidange", kConCarico},
    {u" area sosta", kPuntoSosta},
    {u" area di sosta", kPuntoSosta},
    {u" area camper", kPuntoSosta},
    {u" sosta", kPuntoSosta},
    {u" ps ", kPuntoSosta},
    {u" parcheggi", kPuntoSosta},
    {u" parking", kPuntoSosta},
    {u" parkplatz", kPuntoSosta},
    {u" stellplatz", kPuntoSosta},
    {u" wohnmobil", kPuntoSosta},
    {u" reisemobil", kPuntoSosta},
    {u" aire ", kPuntoSosta},
    {u" motorhome", kPuntoSosta},
    {u" rv park", kPuntoSosta},
    {u" ristorant", kRistorante},
    {u" restaurant", kRistorante},
    {u" trattori", kRistorante},
    {u" osteri", kRistorante},
    {u" pizzeri", kRistorante},
    {u" gpl ", kGpl},
    {u" lpg ", kGpl},
    {u" autogas", kGpl},
    {u" camper ", kPuntoSosta},
    {u" camperplaats", kPuntoSosta},
}};

// Words in small letters without accents, a blank before and behind each.
QString InParole(const QString& testo) {
    QString parole(u' ');
    QString parola;
    for (const QChar c : testo + u' ') {
        if (c.isLetterOrNumber()) {
            parola += c;
        } else if (!parola.isEmpty()) {
            parole += NomePiegato(parola) + u' ';
            parola.clear();
        }
    }
    return parole;
}

// Chooses among the types of an archive those that need no time.
class TipiSosta {
  public:
    explicit TipiSosta(std::vector<TipoGuida> tipi) : tipi_(std::move(tipi)) {
        std::erase_if(tipi_, [](const TipoGuida& tipo) { return tipo.tempoObbligatorio; });
        if (tipi_.empty()) throw Failure(u"La guida non ha nessuna tipologia per le soste."_s);
    }
    // What the file calls its kind comes first, then its name, then what else it tells.
    [[nodiscard]] QString Di(const SostaLetta& sosta) const {
        const QString detto = NomePiegato(sosta.tipo);
        for (const TipoGuida& tipo : tipi_) {
            if (!detto.isEmpty() && NomePiegato(tipo.descrizione) == detto) return tipo.descrizione;
        }
        for (const QString& testo : {sosta.tipo, sosta.nome, sosta.note}) {
            const QString parole = InParole(testo);
            for (const ParolaChiave& chiave : kParole) {
                if (parole.contains(chiave.parola)) return ConCodice(chiave.tipo);
            }
        }
        return ConCodice(kPuntoSosta);
    }

  private:
    [[nodiscard]] QString ConCodice(int codice) const {
        const auto tipo = std::find_if(tipi_.begin(), tipi_.end(),
                                       [&](const TipoGuida& t) { return ValoreNumerico(t.codice) == codice; });
        return (tipo == tipi_.end() ? tipi_.front() : *tipo).descrizione;
    }

    std::vector<TipoGuida> tipi_;
};

// What makes two entries the same to a person.
QString ChiaveVoce(const QString& localita, const QString& descrizione) {
    return Maiuscolo(localita.trimmed()) + u'\n' + Maiuscolo(descrizione.trimmed());
}

std::set<QString> VociPresenti(Archive& archive) {
    std::set<QString> chiavi;
    for (const Record& record : archive.Select({Table::GuidaCitta, {}})) {
        chiavi.insert(ChiaveVoce(record[guida::Localita], record[guida::Descrizione]));
    }
    return chiavi;
}

// Makes the proposal of one place after the other.
class Proponente {
  public:
    Proponente(Archive& archive, Gazzettino& gazzettino, Progress& progress)
        : gazzettino_(gazzettino),
          tipi_(CaricaTipiGuida(archive)),
          itinerari_(LocalitaDegliItinerari(archive, gazzettino, progress)),
          presenti_(VociPresenti(archive)) {}

    SostaProposta Proponi(const SostaLetta& sosta) {
        SostaProposta proposta{Localita(sosta.posizione), sosta.nome, tipi_.Di(sosta), {}, false, sosta.posizione};
        const QString conNote =
            sosta.note.isEmpty() || sosta.note == sosta.nome ? sosta.nome : sosta.nome + u", "_s + sosta.note;
        proposta.senzaNote = conNote.size() > Width(Table::GuidaCitta, guida::Descrizione);
        if (!proposta.senzaNote) proposta.descrizione = conNote;
        proposta.segno = Segno(proposta, sosta.nome);
        if (proposta.segno == SegnoSosta::Nuova || proposta.segno == SegnoSosta::GiaInGuida) {
            aggiunte_.insert(ChiaveVoce(proposta.localita, proposta.descrizione));
            vicine_.Metti(proposta.posizione, proposta.descrizione);
        }
        return proposta;
    }

  private:
    [[nodiscard]] QString Localita(const Posizione& posizione) const {
        if (const auto nome = itinerari_.Vicino(posizione, kKmItinerario)) return *nome;
        const auto luogo = gazzettino_.PiuVicino(posizione, kKmRepertorio);
        return luogo ? Maiuscolo(luogo->nome) : QString();
    }
    [[nodiscard]] SegnoSosta Segno(const SostaProposta& proposta, const QString& nome) const {
        if (nome.isEmpty()) return SegnoSosta::SenzaNome;
        if (proposta.localita.isEmpty()) return SegnoSosta::SenzaLuogo;
        if (proposta.localita.size() > Width(Table::GuidaCitta, guida::Localita) ||
            proposta.descrizione.size() > Width(Table::GuidaCitta, guida::Descrizione)) {
            return SegnoSosta::TroppoLunga;
        }
        const QString chiave = ChiaveVoce(proposta.localita, proposta.descrizione);
        if (presenti_.contains(chiave)) return SegnoSosta::GiaInGuida;
        if (aggiunte_.contains(chiave) || vicine_.Vicino(proposta.posizione, kKmDoppione)) return SegnoSosta::Vicina;
        return SegnoSosta::Nuova;
    }

    Gazzettino& gazzettino_;
    TipiSosta tipi_;
    PuntiVicini itinerari_;
    std::set<QString> presenti_;
    std::set<QString> aggiunte_;
    PuntiVicini vicine_;
};

}  // namespace

QString Testo(SegnoSosta segno) {
    switch (segno) {
        case SegnoSosta::Nuova:
            return u"nuova"_s;
        case SegnoSosta::GiaInGuida:
            return u"già in guida"_s;
        case SegnoSosta::Vicina:
            return u"doppione"_s;
        case SegnoSosta::SenzaNome:
            return u"senza nome"_s;
        case SegnoSosta::SenzaLuogo:
            return u"nessuna località vicina"_s;
        case SegnoSosta::TroppoLunga:
            return u"troppo lunga"_s;
    }
    return {};
}

std::optional<std::vector<SostaProposta>> ProponiSoste(Archive& archive, Gazzettino& gazzettino,
                                                       std::span<const SostaLetta> soste, Progress& progress) {
    const ReadSnapshot momento(archive);
    progress.Title(u"Lettura delle soste"_s);
    std::vector<SostaProposta> proposte;
    proposte.reserve(soste.size());
    try {
        Proponente proponente(archive, gazzettino, progress);
        for (const SostaLetta& sosta : soste) {
            HeedStop(progress);
            progress.Advance(static_cast<double>(proposte.size()), static_cast<double>(soste.size()));
            proposte.push_back(proponente.Proponi(sosta));
        }
    } catch (const Stopped&) {
        return std::nullopt;
    }
    const bool nessuna =
        std::all_of(proposte.begin(), proposte.end(), [](const SostaProposta& s) { return s.localita.isEmpty(); });
    if (nessuna && !gazzettino.Disponibile()) {
        throw Failure(u"Il repertorio dei luoghi (luoghi.dat) non si trova: reinstalla il programma."_s);
    }
    return proposte;
}

int SosteNuove(std::span<const SostaProposta> soste) {
    return static_cast<int>(
        std::count_if(soste.begin(), soste.end(), [](const SostaProposta& s) { return s.segno == SegnoSosta::Nuova; }));
}

QString ConteggioSoste(std::span<const SostaProposta> soste, bool fatto) {
    static constexpr std::array<std::pair<SegnoSosta, QStringView>, 5> motivi = {{
        {SegnoSosta::GiaInGuida, u"già nella guida"},
        {SegnoSosta::Vicina, u"doppioni nel file (a meno di 200 m, o con lo stesso nome)"},
        {SegnoSosta::SenzaNome, u"senza nome"},
        {SegnoSosta::SenzaLuogo, u"senza località vicine"},
        {SegnoSosta::TroppoLunga, u"con un nome troppo lungo per la guida"},
    }};
    QStringList righe = {(fatto ? u"Soste aggiunte alla guida: %1."_s : u"Soste da aggiungere alla guida: %1."_s)
                             .arg(Raggruppa(SosteNuove(soste)))};
    const auto conta = [&](const QString& frase, auto quali) {
        const auto quante = std::count_if(soste.begin(), soste.end(), quali);
        if (quante > 0) righe += frase.arg(Raggruppa(quante));
    };
    for (const auto& [segno, motivo] : motivi) {
        conta(u"Lasciate fuori, %1: %2."_s.arg(motivo, u"%1"),
              [quale = segno](const SostaProposta& s) { return s.segno == quale; });
    }
    conta(u"Senza le loro note, troppo lunghe per la guida: %1."_s,
          [](const SostaProposta& s) { return s.segno == SegnoSosta::Nuova && s.senzaNote; });
    return righe.join(u'\n');
}

TracciaImport AggiungiSoste(Archive& archive, std::span<SostaProposta> soste) {
    Transaction transaction(archive);
    const std::vector<TipoGuida> tipi = CaricaTipiGuida(archive);
    const std::set<QString> presenti = VociPresenti(archive);
    OsservaAggiunte aggiunte(archive);
    for (SostaProposta& sosta : soste) {
        if (sosta.segno != SegnoSosta::Nuova) continue;
        if (presenti.contains(ChiaveVoce(sosta.localita, sosta.descrizione))) {
            sosta.segno = SegnoSosta::GiaInGuida;
            continue;
        }
        SalvaVoce(archive, sosta.localita, std::nullopt, tipi, {sosta.descrizione, sosta.tipo, 0, 0});
    }
    TracciaImport traccia = aggiunte.Fine();
    transaction.Commit();
    return traccia;
}

}  // namespace cronovia
