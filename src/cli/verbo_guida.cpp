// guida.
#include "calendar/testo.h"
#include "cli/json.h"
#include "cli/record_testi.h"
#include "cli/verbi.h"
#include "guide/guida_citta.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Names are stored with composed letters; some systems type them decomposed.
QString Composto(const QString& nome) { return nome.normalized(QString::NormalizationForm_C); }

TabellaTesti TabellaDellaGuida(const std::vector<Record>& record, const std::vector<TipoGuida>& tipi) {
    TabellaTesti tabella{{u"Località"_s, u"Tipo"_s, u"Tempo"_s, u"Descrizione"_s}, {}, {}};
    QString precedente;
    for (const Record& riga : record) {
        const QString localita = riga[guida::Localita].trimmed();
        const QString tempo = riga[guida::TempoSosta].trimmed();
        tabella.righe.push_back({localita == precedente ? QString() : localita,
                                 DescrizioneTipoGuida(tipi, riga[guida::CodiceGuida]),
                                 tempo == "00:00"_L1 ? QString() : tempo, riga[guida::Descrizione].trimmed()});
        precedente = localita;
    }
    return tabella;
}

}  // namespace

void EseguiGuida(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    Ricerca ricerca{Tabella::GuidaCitta, {}};
    if (!richiesta.argomenti.isEmpty()) {
        ricerca.condizioni.push_back({guida::Localita, NamePattern::ForName(Composto(richiesta.argomenti.first()))});
    }
    Sessione sessione = apri();
    const std::vector<Record> record =
        sessione.Archivio().Select(ricerca, {guida::Localita, guida::CodiceGuida, guida::Descrizione});
    if (richiesta.formato == Formato::Json) {
        ScriviJson(JsonDeiRecord(Tabella::GuidaCitta, record), uscita);
    } else if (richiesta.formato == Formato::Tsv) {
        ScriviTsv(TestiDeiRecord(Tabella::GuidaCitta, record), uscita);
    } else if (record.empty()) {
        uscita << u"Nessuna annotazione nella guida.\n"_s;
    } else {
        ScriviAllineata(TabellaDellaGuida(record, CaricaTipiGuida(sessione.Archivio())), uscita);
    }
}

}  // namespace cronovia
