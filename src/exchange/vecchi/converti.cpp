#include "exchange/vecchi/converti.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <algorithm>
#include <array>
#include <map>
#include <memory>

#include "calendar/testo.h"
#include "exchange/nomi_presenti.h"
#include "exchange/vecchi/vecchi_file.h"
#include "exchange/vecchi/vecchi_record.h"
#include "files/lettore_righe.h"
#include "guide/guida_citta.h"
#include "interaction/failure.h"
#include "trips/mete.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kFileMostrati = 20;  // no box is higher than a screen

NamePattern Codice(const QString& codice) { return NamePattern::Exactly(codice); }

// The stages of one trip by their sequence.
struct VecchieTappe {
    std::map<QString, std::vector<QString>> tappe;
    QString difetto;  // why the file cannot be converted
    qint64 guasti = 0;
};

VecchieTappe LeggiVecchieTappe(const QString& path) {
    const std::unique_ptr<QFile> file = ApriInLettura(path);
    if (!LettoreRecord::Interi(*file, FormaVecchieTappe()))
        return {{}, u"è troncato o non ha record di 64 caratteri"_s, 0};
    LettoreRecord lettore(*file, FormaVecchieTappe(), path);
    RecordFisso record;
    const std::optional<int> annunciate = lettore.Leggi(record) ? NumeroVecchieTappe(record) : std::nullopt;
    if (!annunciate) return {{}, u"i due numeri delle tappe non sono uguali"_s, 0};
    if (lettore.NumeroRecord() - 1 < *annunciate) return {{}, u"ha meno tappe di quante ne annuncia"_s, 0};
    VecchieTappe lette;
    for (int numero = 1; numero <= *annunciate && lettore.Leggi(record); ++numero) {
        const StatoRecord stato = StatoVecchiaTappa(record);
        if (stato == StatoRecord::Valido) lette.tappe[Zero(numero, 4)] = ValoriVecchiaTappa(record);
        if (stato == StatoRecord::Guasto) ++lette.guasti;
    }
    if (*annunciate > 0 && lette.tappe.empty()) lette.difetto = u"nessuna delle sue tappe è leggibile"_s;
    return lette;
}

class Convertitore {
  public:
    Convertitore(const RichiestaConversione& richiesta, Progress& progress)
        : archive_(richiesta.archive), file_(richiesta.cartella, richiesta.adesso), progress_(progress) {}

    EsitoConversione Esegui();

  private:
    void ConvertiMete(const QString& path);
    void ConvertiMeta(const RecordFisso& record, const std::vector<QString>& altri);
    void ConvertiItinerari();
    void ConvertiItinerario(const QString& codice, const QString& nome);
    void MemorizzaTappe(const QString& codice, const std::map<QString, std::vector<QString>>& tappe);
    void ConvertiGuida(const QString& path);
    void MemorizzaVoce(const std::vector<QString>& valori, NomiPresenti& presenti);
    template <typename Visita>
    void ScorriRecord(const QString& path, const FormaRecord& forma, Visita&& visita);
    void Lascia(const QString& nome, const QString& perche) { esito_.lasciati.push_back({nome, perche}); }
    void CancellaConvertiti();

    Archive& archive_;
    VecchiFile file_;
    Progress& progress_;
    EsitoConversione esito_;
    QSet<QString> convertite_;           // codes of the trips
    std::vector<QString> daCancellare_;  // in this order
};

EsitoConversione Convertitore::Esegui() {
    const std::optional<QString> mete = file_.Trova(NomeVecchieMete());
    const std::optional<QString> guida = file_.Trova(NomeVecchiaGuida());
    if (!mete) throw Failure(u"Non c'è niente da convertire: manca il file %1."_s.arg(NomeVecchieMete()));
    {
        Transaction transaction(archive_);
        ConvertiMete(*mete);
        ConvertiItinerari();
        if (guida) ConvertiGuida(*guida);
        RipristinaTipiGuida(archive_, progress_);
        transaction.Commit();
    }
    file_.Tieni();
    esito_.cartellaCopie = file_.CartellaCopie();
    if (guida) daCancellare_.push_back(*guida);
    daCancellare_.push_back(*mete);
    CancellaConvertiti();
    progress_.Advance(0, 0);
    return std::move(esito_);
}

// Visits all records; a file that holds something, but nothing valid, is none of ours.
template <typename Visita>
void Convertitore::ScorriRecord(const QString& path, const FormaRecord& forma, Visita&& visita) {
    const std::unique_ptr<QFile> file = ApriInLettura(file_.Copia(path));
    LettoreRecord lettore(*file, forma, path);
    RecordFisso record;
    qint64 validi = 0;
    qint64 guasti = 0;
    while (lettore.Leggi(record)) {
        HeedStop(progress_);
        progress_.Advance(static_cast<double>(lettore.Letti()), static_cast<double>(lettore.NumeroRecord()));
        const StatoRecord stato = visita(record);
        if (stato == StatoRecord::Valido) ++validi;
        if (stato == StatoRecord::Guasto) ++guasti;
    }
    if (guasti > 0 && validi == 0) {
        throw Failure(u"Il file %1 non è dell'edizione precedente: nessuno dei suoi record è leggibile."_s.arg(
            QDir::toNativeSeparators(path)));
    }
    esito_.guasti += guasti;
}

void Convertitore::ConvertiMete(const QString& path) {
    progress_.Title(u"Conversione file mète"_s);
    const std::vector<QString> parametri = ValoriDeiParametri(CaricaDefaultMeta(archive_));
    const std::vector<QString> altri = {parametri[parametri::OreTraghetti], u"000"_s,
                                        parametri[parametri::CalcoloSoste]};
    ScorriRecord(path, FormaVecchieMete(), [&](const RecordFisso& record) {
        const StatoRecord stato = StatoVecchiaMeta(record);
        if (stato == StatoRecord::Valido) ConvertiMeta(record, altri);
        return stato;
    });
}

// `altri` are the fields that the old record lacks, for a new trip.
void Convertitore::ConvertiMeta(const RecordFisso& record, const std::vector<QString>& altri) {
    std::vector<QString> valori = ValoriVecchiaMeta(record);
    const QString codice = valori[mete::CodiceMeta];
    std::optional<Record> gia = archive_.SelectFirst({Table::MeteVandro, {{mete::CodiceMeta, Codice(codice)}}});
    if (gia) {
        std::copy(valori.begin(), valori.end(), gia->values.begin());
        archive_.Update(Table::MeteVandro, *gia);
    } else {
        valori.insert(valori.end(), altri.begin(), altri.end());
        archive_.Insert(Table::MeteVandro, valori);
    }
    convertite_.insert(codice);
    ++esito_.mete;
}

void Convertitore::ConvertiItinerari() {
    progress_.Title(u"Conversione file itinerari"_s);
    const std::vector<QString> codici = CodiciDelleMete(archive_);
    QSet<QString> visti;  // longer codes may end alike; a file belongs to the first trip of its name
    double fatti = 0;
    for (const QString& codice : codici) {
        HeedStop(progress_);
        progress_.Advance(++fatti, static_cast<double>(codici.size()));
        const QString nome = NomeVecchieTappe(codice);
        if (visti.contains(nome.toLower())) continue;
        visti.insert(nome.toLower());
        ConvertiItinerario(codice, nome);
    }
}

void Convertitore::ConvertiItinerario(const QString& codice, const QString& nome) {
    const std::optional<QString> path = file_.Trova(nome);
    if (!path) {
        if (convertite_.contains(codice)) Lascia(nome, u"non c'è"_s);
        return;
    }
    const QString copia = file_.Copia(*path);
    const VecchieTappe lette = LeggiVecchieTappe(copia);
    if (lette.difetto.isEmpty()) {
        MemorizzaTappe(codice, lette.tappe);
        esito_.guasti += lette.guasti;
        daCancellare_.push_back(*path);
    } else {
        Lascia(nome, lette.difetto);
        file_.Togli(copia);
    }
}

void Convertitore::MemorizzaTappe(const QString& codice, const std::map<QString, std::vector<QString>>& tappe) {
    QHash<QString, Record> memorizzate;
    for (const Record& record : archive_.Select({Table::Itinerari, {{itinerari::CodiceMeta, Codice(codice)}}})) {
        memorizzate.insert(record[itinerari::Sequenza], record);
    }
    for (const auto& [sequenza, valori] : tappe) {
        const bool gia = memorizzate.contains(sequenza);
        Record record = gia ? memorizzate[sequenza] : Record{0, {codice, sequenza, {}, {}, {}, {}, {}, u" "_s, {}}};
        std::copy(valori.begin(), valori.end(), record.values.begin() + itinerari::Localita);
        record[itinerari::FineGiorno] = u"0"_s;
        if (gia) {
            archive_.Update(Table::Itinerari, record);
        } else {
            archive_.Insert(Table::Itinerari, record.values);
        }
        ++esito_.tappe;
    }
}

void Convertitore::ConvertiGuida(const QString& path) {
    progress_.Title(u"Conversione file guida città"_s);
    NomiPresenti presenti(archive_, Table::GuidaCitta, {guida::Localita, guida::Descrizione});
    ScorriRecord(path, FormaVecchiaGuida(), [&](const RecordFisso& record) {
        const StatoRecord stato = StatoVecchiaVoce(record);
        if (stato == StatoRecord::Valido) MemorizzaVoce(ValoriVecchiaVoce(record), presenti);
        return stato;
    });
}

void Convertitore::MemorizzaVoce(const std::vector<QString>& valori, NomiPresenti& presenti) {
    const std::array localita = {NamePattern::ForName(valori[guida::Localita])};
    std::optional<std::int64_t> id = presenti.Trova(localita, valori[guida::Descrizione].trimmed());
    if (id) {
        archive_.Update(Table::GuidaCitta, {*id, valori});
    } else {
        id = archive_.Insert(Table::GuidaCitta, valori);
    }
    presenti.Scritta(*id, valori);
    ++esito_.voci;
}

// What happened is in the archive already: a file that stays is told, and harms nobody.
void Convertitore::CancellaConvertiti() {
    for (const QString& path : daCancellare_) {
        if (!file_.Cancella(path)) Lascia(QFileInfo(path).fileName(), u"è stato convertito ma non si può cancellare"_s);
    }
}

}  // namespace

EsitoConversione ConvertiVecchiFile(const RichiestaConversione& richiesta, Progress& progress) {
    try {
        return Convertitore(richiesta, progress).Esegui();
    } catch (const Stopped&) {
        EsitoConversione esito;
        esito.interrotta = true;
        return esito;
    }
}

QString TestoEsito(const EsitoConversione& esito) {
    if (esito.interrotta) return u"Conversione interrotta: niente è stato convertito."_s;
    QString testo = u"Conversione eseguita..."_s;
    if (!esito.cartellaCopie.isEmpty()) {
        testo +=
            u"\r\n\r\nUna copia dei vecchi file è nella cartella "_s + QDir::toNativeSeparators(esito.cartellaCopie);
    }
    if (!esito.lasciati.empty()) testo += u"\r\n\r\nFile da controllare:"_s;
    const std::size_t mostrati = std::min(esito.lasciati.size(), kFileMostrati);
    for (std::size_t i = 0; i < mostrati; ++i) {
        testo += u"\r\n%1: %2"_s.arg(esito.lasciati[i].nome, esito.lasciati[i].perche);
    }
    const auto altri = static_cast<qint64>(esito.lasciati.size() - mostrati);
    if (altri > 0) testo += u"\r\ne altri "_s + Raggruppa(altri);
    if (esito.guasti > 0) testo += u"\r\n\r\nRecord illeggibili, non convertiti: "_s + Raggruppa(esito.guasti);
    return testo;
}

}  // namespace cronovia
