// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/iei/esporta_mete.h"

#include <QSet>
#include <algorithm>
#include <iterator>

#include "calendar/testo.h"
#include "exchange/iei/lettore_iei.h"
#include "files/file_intero.h"
#include "files/windows1252.h"
#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Characters that mean something to the reader of the file or that it drops. A Tab travels well.
QString CaratteriVietati() {
    QString vietati = u"ÿþý\""_s;
    for (char16_t c = 0; c < u' '; ++c) {
        if (c != u'\t') vietati += QChar(c);
    }
    return vietati;
}

QStringView SenzaBlank(QStringView testo) {
    while (testo.startsWith(u' ')) testo = testo.sliced(1);
    while (testo.endsWith(u' ')) testo.chop(1);
    return testo;
}

class ScrittoreIei {
  public:
    explicit ScrittoreIei(const QString& path) : file_(path) {}

    void Intestazione(Table tabella, const std::vector<CampiAggiunti>& aggiunti = {}) {
        for (const FieldDefinition& campo : Definition(tabella).fields) Valore(tabella, campo.name);
        for (const CampiAggiunti& altri : aggiunti) {
            const auto& campi = Definition(altri.tabella).fields;
            for (std::size_t i = static_cast<std::size_t>(altri.primo); i < campi.size(); ++i) {
                Valore(tabella, campi[i].name);
            }
        }
        FineRiga();
    }

    void Riga(Table tabella, std::span<const QString> valori) {
        for (const QString& valore : valori) Valore(tabella, valore);
        FineRiga();
    }

    /// Lays the file in its place; returns how many characters travel as another one.
    qint64 Chiudi() {
        file_.Chiudi();
        return sostituiti_;
    }

  private:
    void Valore(Table tabella, QStringView valore) {
        const TestoCodificato testo = InWindows1252(SenzaBlank(valore), vietati_);
        sostituiti_ += testo.sostituiti;
        riga_ += testo.byte;
        riga_ += SeparatoreSezione(tabella);
    }

    void FineRiga() {
        riga_ += "\r\n";
        file_.Scrivi(riga_);
        riga_.clear();
    }

    FileIntero file_;
    QByteArray riga_;
    QString vietati_ = CaratteriVietati();
    qint64 sostituiti_ = 0;
};

Search PerCodice(Table tabella, const QString& codice) { return {tabella, {{0, NamePattern::Exactly(codice)}}}; }

std::vector<QString> CodiciDaEsportare(const RichiestaExport& richiesta) {
    std::vector<QString> codici;
    QSet<QString> presi;
    const auto aggiungi = [&](const QString& codice) {
        if (!presi.contains(codice)) codici.push_back(codice);
        presi.insert(codice);
    };
    for (const QString& codice : richiesta.codici) {
        const bool esiste = richiesta.archive.Exists(PerCodice(Table::MeteVandro, codice));
        if (!esiste && richiesta.saltaMancanti) continue;
        if (!esiste) {
            throw Failure(u"Non c'è nessuna mèta con il codice %1: niente è stato esportato."_s.arg(codice));
        }
        aggiungi(codice);
    }
    if (!codici.empty()) return codici;
    if (!richiesta.codici.empty()) {
        throw Failure(u"Le mète scelte non sono più nell'archivio: niente è stato esportato."_s);
    }
    for (const MetaInElenco& meta : ElencoMete(richiesta.archive)) aggiungi(meta.codice);
    if (codici.empty()) throw Failure(u"Non ci sono mète da esportare: niente è stato esportato."_s);
    return codici;
}

// The fields behind a section's own, of those tables in which a trip has something.
std::vector<CampiAggiunti> AggiuntiScritti(Archive& archive, Table tabella, const std::vector<QString>& codici) {
    std::vector<CampiAggiunti> scritti;
    for (const CampiAggiunti& aggiunti : AggiuntiAllaSezione(tabella)) {
        const auto neHa = [&](const QString& codice) { return archive.Exists(PerCodice(aggiunti.tabella, codice)); };
        if (std::any_of(codici.begin(), codici.end(), neHa)) scritti.push_back(aggiunti);
    }
    return scritti;
}

// What a trip has in one of them, for each of its records. Both tables have the key's fields under the same names; the
// key ends with the locality, and a trip's code is its first field.
class Aggiunte {
  public:
    Aggiunte(Archive& archive, const CampiAggiunti& campi, const QString& codice)
        : campi_(campi), record_(archive.Select(PerCodice(campi.tabella, codice))) {}

    std::vector<QString> Per(const Record& record) {
        const auto chiave = static_cast<std::ptrdiff_t>(campi_.primo);
        const auto sua = [&](const Record& altra) {
            for (int i = 0; i < chiave; ++i) {
                if (altra[i].trimmed() != record[i].trimmed()) return false;
            }
            return true;
        };
        const auto trovata = std::find_if(record_.begin(), record_.end(), sua);
        if (trovata == record_.end()) {
            return std::vector<QString>(Definition(campi_.tabella).fields.size() - static_cast<std::size_t>(chiave));
        }
        std::vector<QString> valori(trovata->values.begin() + chiave, trovata->values.end());
        record_.erase(trovata);
        return valori;
    }

  private:
    CampiAggiunti campi_;
    std::vector<Record> record_;
};

// One of the two sections that go trip after trip; returns its records.
qint64 ScriviSezione(Archive& archive, Table tabella, const std::vector<QString>& codici, ScrittoreIei& scrittore,
                     Progress& progress) {
    const std::vector<CampiAggiunti> aggiunti = AggiuntiScritti(archive, tabella, codici);
    scrittore.Intestazione(tabella, aggiunti);
    qint64 scritti = 0;
    double fatte = 0;
    for (const QString& codice : codici) {
        HeedStop(progress);
        progress.Advance(++fatte, static_cast<double>(codici.size()));
        std::vector<Aggiunte> aggiunte;
        aggiunte.reserve(aggiunti.size());
        for (const CampiAggiunti& campi : aggiunti) aggiunte.emplace_back(archive, campi, codice);
        for (const Record& record : archive.Select(PerCodice(tabella, codice))) {
            std::vector<QString> valori = record.values;
            for (Aggiunte& altre : aggiunte) std::ranges::move(altre.Per(record), std::back_inserter(valori));
            scrittore.Riga(tabella, valori);
            ++scritti;
            if (tabella == Table::MeteVandro) break;
        }
    }
    return scritti;
}

qint64 ScriviGuida(Archive& archive, ScrittoreIei& scrittore, Progress& progress) {
    const auto totale = static_cast<double>(archive.Count(Table::GuidaCitta));
    qint64 scritti = 0;
    archive.ForEach(Table::GuidaCitta, [&](const Record& record) {
        HeedStop(progress);
        if (scritti == 0) scrittore.Intestazione(Table::GuidaCitta);
        scrittore.Riga(Table::GuidaCitta, record.values);
        progress.Advance(static_cast<double>(++scritti), totale);
    });
    return scritti;
}

// `Stopped` on a stop: the file, never closed, is not there.
EsitoExport Esportate(const RichiestaExport& richiesta, Progress& progress) {
    const ReadSnapshot momento(richiesta.archive);
    richiesta.archive.ConfirmSound();
    const std::vector<QString> codici = CodiciDaEsportare(richiesta);
    RifiutaFileEsistente(richiesta.path, richiesta.sovrascrivi);
    RifiutaFileArchivio(richiesta.path, richiesta.archive.Path());
    ScrittoreIei scrittore(richiesta.path);
    EsitoExport esito;
    esito.path = richiesta.path;
    progress.Title(u"Esportazione mète"_s);
    esito.mete = ScriviSezione(richiesta.archive, Table::MeteVandro, codici, scrittore, progress);
    progress.Title(u"Esportazione itinerari"_s);
    esito.tappe = ScriviSezione(richiesta.archive, Table::Itinerari, codici, scrittore, progress);
    progress.Title(u"Esportazione guida città"_s);
    esito.voci = ScriviGuida(richiesta.archive, scrittore, progress);
    esito.caratteriSostituiti = scrittore.Chiudi();
    progress.Advance(0, 0);
    return esito;
}

}  // namespace

EsitoExport EsportaMete(const RichiestaExport& richiesta, Progress& progress) {
    try {
        return Esportate(richiesta, progress);
    } catch (const Stopped&) {
        EsitoExport esito;
        esito.path = richiesta.path;
        esito.interrotta = true;
        return esito;
    }
}

QString NomeFileExport(std::span<const MetaInElenco> mete) {
    QString nome = NomeDiFile(mete.empty() ? QString() : mete.front().localita, u"Mete");
    if (mete.size() > 1) nome += u" e altre %1"_s.arg(mete.size() - 1);
    return nome + u".iei"_s;
}

QString TestoEsito(const EsitoExport& esito) {
    if (esito.interrotta) return u"Esportazione interrotta: il file non è stato scritto."_s;
    QString testo = u"Le mète esportate si trovano sul file "_s + esito.path;
    if (esito.caratteriSostituiti > 0) {
        testo += u"\r\nCaratteri che il file non può contenere, sostituiti con un altro: "_s +
                 Raggruppa(esito.caratteriSostituiti);
    }
    return testo;
}

}  // namespace cronovia
