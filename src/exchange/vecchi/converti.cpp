// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/vecchi/converti.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <QStringList>
#include <algorithm>
#include <array>
#include <map>
#include <memory>

#include "calendar/date.h"
#include "calendar/durata.h"
#include "calendar/testo.h"
#include "exchange/nomi_campi.h"
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

constexpr qsizetype kRigheMostrate = 20;  // no box is higher than a screen

NamePattern Codice(const QString& codice) { return NamePattern::Exactly(codice); }

// The stages of one trip by their sequence.
struct VecchieTappe {
    std::map<QString, std::vector<QString>> tappe;
    QString difetto;   // why the file cannot be converted
    QString troncato;  // what a file that ends too early brings all the same; else empty
    qint64 guasti = 0;
    qint64 saltate = 0;
};

VecchieTappe Difettose(const QString& difetto) { return {{}, difetto, {}, 0, 0}; }

QString UltimoTroncato() { return u"l'ultimo record è troncato e non è stato convertito"_s; }

// A trip that starts now, with the personal parameters.
std::vector<QString> Predefiniti(Archive& archive, const QDateTime& adesso) {
    Meta meta;
    meta.dataInizio = NumeroDelGiorno({adesso.date().day(), adesso.date().month(), adesso.date().year()});
    meta.oraInizio = InCentesimi({0, adesso.time().hour(), adesso.time().minute() / 15 * 15}, kGiornoOrologio);
    meta.parametri = CaricaDefaultMeta(archive);
    return ValoriDellaMeta(meta);
}

VecchieTappe LeggiVecchieTappe(const QString& path) {
    const std::unique_ptr<QFile> file = ApriInLettura(path);
    if (!LettoreRecord::Possibile(*file, FormaVecchieTappe()))
        return Difettose(u"è troncato o non ha record di 64 caratteri"_s);
    LettoreRecord lettore(*file, FormaVecchieTappe(), path);
    RecordFisso record;
    const std::optional<int> annunciate = lettore.Leggi(record) ? NumeroVecchieTappe(record) : std::nullopt;
    if (!annunciate) return Difettose(u"i due numeri delle tappe non sono uguali"_s);
    if (lettore.NumeroRecord() - 1 < *annunciate && !lettore.Troncato())
        return Difettose(u"ha meno tappe di quante ne annuncia"_s);
    VecchieTappe lette;
    if (const qint64 intere = lettore.NumeroRecord() - 1; intere < *annunciate) {
        lette.troncato = u"è troncato: contiene solo %1 di %2 tappe"_s.arg(Raggruppa(intere), Raggruppa(*annunciate));
    } else if (lettore.Troncato()) {
        lette.troncato = UltimoTroncato();
    }
    for (int numero = 1; numero <= *annunciate && lettore.Leggi(record); ++numero) {
        const StatoRecord stato = StatoVecchiaTappa(record);
        if (stato == StatoRecord::Valido) lette.tappe[Zero(numero, 4)] = ValoriVecchiaTappa(record);
        if (stato == StatoRecord::Guasto) ++lette.guasti;
        if (stato == StatoRecord::Saltato) ++lette.saltate;
    }
    if (*annunciate > 0 && lette.tappe.empty()) lette.difetto = u"nessuna delle sue tappe è leggibile"_s;
    return lette;
}

class Convertitore {
  public:
    Convertitore(const RichiestaConversione& richiesta, Progress& progress)
        : archive_(richiesta.archive),
          file_(richiesta.cartella, richiesta.adesso),
          predefiniti_(Predefiniti(richiesta.archive, richiesta.adesso)),
          progress_(progress) {}

    EsitoConversione Esegui();

  private:
    void ConvertiMete(const QString& path);
    void CopiaDatabase(const QString& copia, const QString& path);
    bool CambiaMeteMemorizzate(const QString& copia, const QString& path);
    void ConvertiMeta(const RecordFisso& record);
    void ConvertiItinerari();
    void ConvertiItinerario(const QString& codice, const QString& nome);
    void MemorizzaTappe(const QString& codice, const std::map<QString, std::vector<QString>>& tappe);
    void ConvertiGuida(const QString& path);
    std::int64_t MemorizzaVoce(const std::vector<QString>& valori, NomiPresenti& presenti);
    template <typename Visita>
    void ScorriRecord(const QString& path, const FormaRecord& forma, Visita&& visita);
    [[nodiscard]] std::optional<Record> Memorizzata(const QString& codice) {
        return archive_.SelectFirst({Table::MeteVandro, {{mete::CodiceMeta, Codice(codice)}}});
    }
    void Lascia(const QString& nome, const QString& perche) { esito_.lasciati.push_back({nome, perche}); }
    void TieniCopiaDatabase();
    void CancellaConvertiti();

    Archive& archive_;
    VecchiFile file_;
    std::vector<QString> predefiniti_;  // all fields of a new trip
    Progress& progress_;
    EsitoConversione esito_;
    QString copiaDatabase_;              // path of the copy that may be needed
    QSet<QString> convertite_;           // codes of the trips
    std::vector<QString> daCancellare_;  // in this order
};

EsitoConversione Convertitore::Esegui() {
    const std::optional<QString> mete = file_.Trova(NomeVecchieMete());
    const std::optional<QString> guida = file_.Trova(NomeVecchiaGuida());
    if (!mete) throw Failure(u"Non c'è niente da convertire: manca il file %1."_s.arg(NomeVecchieMete()));
    archive_.ConfirmSound();
    archive_.KeepCopy(u"prima di convertire"_s);
    {
        Transaction transaction(archive_);
        ConvertiMete(*mete);
        ConvertiItinerari();
        if (guida) ConvertiGuida(*guida);
        RipristinaTipiGuida(archive_, progress_);
        transaction.Commit();
    }
    file_.Tieni();
    TieniCopiaDatabase();
    if (guida) daCancellare_.push_back(*guida);
    daCancellare_.push_back(*mete);
    CancellaConvertiti();
    file_.Concludi();
    esito_.cartellaCopie = file_.CartellaCopie();
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
    if (lettore.Troncato()) Lascia(QFileInfo(path).fileName(), UltimoTroncato());
}

void Convertitore::ConvertiMete(const QString& path) {
    progress_.Title(u"Conversione file mète"_s);
    CopiaDatabase(file_.Copia(path), path);
    ScorriRecord(path, FormaVecchieMete(), [&](const RecordFisso& record) {
        const StatoRecord stato = StatoVecchiaMeta(record);
        if (stato == StatoRecord::Valido) ConvertiMeta(record);
        if (stato == StatoRecord::Saltato) ++esito_.cancellati;
        return stato;
    });
}

// Before anything is written, when a stored trip or entry of the guide may change.
void Convertitore::CopiaDatabase(const QString& copia, const QString& path) {
    const bool guida = file_.Trova(NomeVecchiaGuida()) && archive_.Count(Table::GuidaCitta) > 0;
    if (!guida && !CambiaMeteMemorizzate(copia, path)) return;
    copiaDatabase_ = file_.PostoPerDatabase(u"VandroCronovia.mdb"_s);
    archive_.CopyTo(copiaDatabase_);
}

// A trip changes when one of its number comes, or when there are stages for it.
bool Convertitore::CambiaMeteMemorizzate(const QString& copia, const QString& path) {
    const std::vector<QString> codici = CodiciDelleMete(archive_);
    if (std::any_of(codici.begin(), codici.end(),
                    [&](const QString& codice) { return file_.Trova(NomeVecchieTappe(codice)).has_value(); }))
        return true;
    const std::unique_ptr<QFile> file = ApriInLettura(copia);
    LettoreRecord lettore(*file, FormaVecchieMete(), path);
    RecordFisso record;
    while (lettore.Leggi(record)) {
        HeedStop(progress_);
        if (StatoVecchiaMeta(record) == StatoRecord::Valido && Memorizzata(CodiceVecchiaMeta(record))) return true;
    }
    return false;
}

void Convertitore::ConvertiMeta(const RecordFisso& record) {
    VecchiaMeta vecchia = LeggiVecchiaMeta(record, predefiniti_);
    std::vector<QString>& valori = vecchia.valori;
    const QString codice = valori[mete::CodiceMeta];
    for (const mete::Field campo : vecchia.sostituiti) {
        esito_.campiSostituiti.push_back({valori[mete::Localita], NomeCampoMeta(campo)});
    }
    if (std::optional<Record> gia = Memorizzata(codice)) {
        if (!convertite_.contains(codice)) {
            esito_.meteSostituite.push_back({codice, (*gia)[mete::Localita].trimmed(), valori[mete::Localita]});
        }
        std::copy(valori.begin(), valori.end(), gia->values.begin());
        archive_.Update(Table::MeteVandro, *gia);
    } else {
        valori.insert(valori.end(), predefiniti_.begin() + std::ssize(valori), predefiniti_.end());
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
        if (!convertite_.contains(codice) && !lette.tappe.empty()) {
            const QString localita = Memorizzata(codice).value()[mete::Localita].trimmed();
            esito_.meteSostituite.push_back({codice, localita, u"con le tappe di "_s + nome});
        }
        MemorizzaTappe(codice, lette.tappe);
        esito_.guasti += lette.guasti;
        esito_.tappeSaltate += lette.saltate;
        if (!lette.troncato.isEmpty()) Lascia(nome, lette.troncato);
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
    const std::int64_t ultima = archive_.LastId(Table::GuidaCitta);
    QSet<std::int64_t> sostituite;
    ScorriRecord(path, FormaVecchiaGuida(), [&](const RecordFisso& record) {
        const StatoRecord stato = StatoVecchiaVoce(record);
        if (stato != StatoRecord::Valido) return stato;
        const std::int64_t voce = MemorizzaVoce(ValoriVecchiaVoce(record), presenti);
        if (voce <= ultima) sostituite.insert(voce);
        return stato;
    });
    esito_.vociSostituite = sostituite.size();
}

std::int64_t Convertitore::MemorizzaVoce(const std::vector<QString>& valori, NomiPresenti& presenti) {
    const std::array localita = {NamePattern::ForName(valori[guida::Localita])};
    std::optional<std::int64_t> id = presenti.Trova(localita, valori[guida::Descrizione].trimmed());
    if (id) {
        archive_.Update(Table::GuidaCitta, {*id, valori});
    } else {
        id = archive_.Insert(Table::GuidaCitta, valori);
    }
    presenti.Scritta(*id, valori);
    ++esito_.voci;
    return *id;
}

// The files told of a change that did not come when none of them could be read.
void Convertitore::TieniCopiaDatabase() {
    if (copiaDatabase_.isEmpty()) return;
    if (esito_.meteSostituite.empty() && esito_.vociSostituite == 0) {
        file_.Togli(copiaDatabase_);
    } else {
        esito_.copiaDatabase = QFileInfo(copiaDatabase_).fileName();
    }
}

// What happened is in the archive already: a file that stays is told, and harms nobody.
void Convertitore::CancellaConvertiti() {
    for (const QString& path : daCancellare_) {
        if (!file_.Cancella(path)) Lascia(QFileInfo(path).fileName(), u"è stato convertito ma non si può cancellare"_s);
    }
}

// A paragraph of the closing box; nothing without rows.
QString Elenco(const QString& titolo, const QStringList& righe) {
    if (righe.isEmpty()) return {};
    const auto mostrate = std::min(righe.size(), kRigheMostrate);
    QString testo = u"\r\n\r\n"_s + titolo + u"\r\n"_s + righe.first(mostrate).join(u"\r\n"_s);
    if (righe.size() > mostrate) testo += u"\r\ne altri "_s + Raggruppa(righe.size() - mostrate);
    return testo;
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
    QStringList righe;
    for (const auto& [codice, prima, adesso] : esito.meteSostituite)
        righe += u"%1 %2: ora %3"_s.arg(codice, prima, adesso);
    testo +=
        Elenco(u"Mète sostituite (il database com'era prima è %1, con le copie):"_s.arg(esito.copiaDatabase), righe);
    if (esito.vociSostituite > 0) {
        testo += u"\r\n\r\nAnnotazioni della guida sostituite: %1 (il database com'era prima è %2, con le copie)"_s.arg(
            Raggruppa(esito.vociSostituite), esito.copiaDatabase);
    }
    righe.clear();
    for (const auto& [meta, campo] : esito.campiSostituiti) righe += meta + u": "_s + campo;
    testo += Elenco(u"Campi illeggibili, convertiti con il valore predefinito:"_s, righe);
    righe.clear();
    for (const auto& [nome, perche] : esito.lasciati) righe += nome + u": "_s + perche;
    testo += Elenco(u"File da controllare:"_s, righe);
    QString conti;
    const auto conta = [&](const QString& cosa, qint64 quanti) {
        if (quanti > 0) conti += u"\r\n"_s + cosa + u": "_s + Raggruppa(quanti);
    };
    conta(u"Record illeggibili, non convertiti"_s, esito.guasti);
    conta(u"Mète cancellate nell'edizione precedente, non convertite"_s, esito.cancellati);
    conta(u"Tappe senza una località in lettere maiuscole, non convertite"_s, esito.tappeSaltate);
    if (!conti.isEmpty()) testo += u"\r\n"_s + conti;
    return testo;
}

}  // namespace cronovia
