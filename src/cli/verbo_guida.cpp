// SPDX-License-Identifier: GPL-3.0-or-later
// guida.
#include <QRegularExpression>
#include <map>
#include <tuple>

#include "app/cartella_dati.h"
#include "calendar/testo.h"
#include "cli/json.h"
#include "cli/record_testi.h"
#include "cli/verbi.h"
#include "exchange/soste/importa_soste.h"
#include "guide/annotazioni.h"
#include "interaction/failure.h"
#include "itinerary/elenco_guida.h"

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

// What holds control characters is meant as it stands: entries from elsewhere may have them.
QString SenzaBlankInutili(const QString& testo) { return HaCaratteriDiControllo(testo) ? testo : testo.simplified(); }

// A visit takes as long as the lists of the guide's screen can say.
constexpr int kMassimeOreVisita = 15;
constexpr int kPassoMinutiVisita = 15;

// What the command line says of one entry.
struct Annotazione {
    QString localita;
    CampiVoce campi;
};

void LeggiTempo(const QString& testo, CampiVoce& campi) {
    static const QRegularExpression forma(u"^(\\d{1,2}):([0-5]\\d)$"_s);
    const QRegularExpressionMatch tempo = forma.match(testo.trimmed());
    if (!tempo.hasMatch()) throw WrongUsage(u"Il tempo «%1» non è nella forma hh:mm, come 01:30."_s.arg(testo));
    campi.ore = tempo.captured(1).toInt();
    campi.minuti = tempo.captured(2).toInt();
    if (campi.ore > kMassimeOreVisita || campi.minuti % kPassoMinutiVisita != 0) {
        throw WrongUsage(u"Il tempo «%1» dev'essere da 00:00 a 15:45, in quarti d'ora."_s.arg(testo.trimmed()));
    }
}

Annotazione LeggiAnnotazione(const QStringList& argomenti) {
    const auto testo = [&](qsizetype i) { return SenzaBlankInutili(Composto(argomenti.at(i))); };
    Annotazione letta{Maiuscolo(testo(0)), {testo(2), testo(1), 0, 0}};
    if (letta.localita.isEmpty()) throw WrongUsage(u"Manca la località."_s);
    if (argomenti.size() > 3) LeggiTempo(argomenti.at(3), letta.campi);
    return letta;
}

void ControllaArgomenti(const Richiesta& richiesta, int minimo, int massimo, const QString& uso) {
    const auto numero = richiesta.argomenti.size();
    if (numero < minimo || numero > massimo || richiesta.opzioni.size() > 1) throw WrongUsage(uso);
}

// What shows or prints the guide: a locality, or a trip; the switches of the printout only with it.
void ControllaMostra(const Richiesta& richiesta) {
    const bool pdf = richiesta.opzioni.contains(u"pdf"_s);
    const int massimo = pdf || richiesta.opzioni.contains(u"meta"_s) ? 0 : 1;
    if (richiesta.argomenti.size() > massimo) {
        throw WrongUsage(u"Il verbo «guida» non vuole l'argomento «%1»."_s.arg(richiesta.argomenti.at(massimo)));
    }
    for (const QString& opzione : {u"prova"_s, u"colonne"_s}) {
        if (richiesta.opzioni.contains(opzione)) {
            throw WrongUsage(u"L'opzione --%1 vale solo con --importa."_s.arg(opzione));
        }
    }
    for (const QString& nome : {u"dettaglio"_s, u"sovrascrivi"_s}) {
        if (!pdf && richiesta.opzioni.contains(nome)) {
            throw WrongUsage(u"L'opzione --%1 vale solo con --pdf."_s.arg(nome));
        }
    }
}

void Aggiungi(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    ControllaArgomenti(richiesta, 3, 4,
                       u"Con --aggiungi si scrive: guida --aggiungi LOCALITA TIPO DESCRIZIONE [hh:mm]."_s);
    for (const QString& argomento : richiesta.argomenti) RifiutaCaratteriDiControllo(u"L'annotazione"_s, argomento);
    const Annotazione nuova = LeggiAnnotazione(richiesta.argomenti);
    Sessione sessione = apri();
    SalvaVoce(sessione.Archivio(), nuova.localita, std::nullopt, CaricaTipiGuida(sessione.Archivio()), nuova.campi);
    uscita << u"Aggiunta alla guida: %1, %2.\n"_s.arg(nuova.localita, nuova.campi.descrizione);
}

[[noreturn]] void RifiutaMancante(const Annotazione& detta) {
    throw Failure(u"La guida non ha l'annotazione «%1» (%2) di %3."_s.arg(detta.campi.descrizione, detta.campi.tipo,
                                                                          detta.localita));
}

// A name means itself alone here: with wildcards the first entry of another locality would be meant.
VoceGuida TrovaVoce(Archive& archivio, const std::vector<TipoGuida>& tipi, const Annotazione& detta) {
    const NamePattern localita = NamePattern::Exactly(detta.localita);
    const QString tipo = TipoComeInElenco(tipi, detta.campi.tipo);
    for (const Record& record : archivio.Select({Table::GuidaCitta, {{guida::Localita, localita}}})) {
        VoceGuida voce = VoceDelRecord(record, tipi);
        if (voce.tipo == tipo && voce.descrizione == detta.campi.descrizione) return voce;
    }
    RifiutaMancante(detta);
}

void Togli(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    ControllaArgomenti(richiesta, 3, 3, u"Con --togli si scrive: guida --togli LOCALITA TIPO DESCRIZIONE."_s);
    const Annotazione tolta = LeggiAnnotazione(richiesta.argomenti);
    Sessione sessione = apri();
    Archive& archivio = sessione.Archivio();
    const VoceGuida voce = TrovaVoce(archivio, CaricaTipiGuida(archivio), tolta);
    if (!CancellaVoce(archivio, NamePattern::Exactly(tolta.localita), voce)) RifiutaMancante(tolta);
    uscita << u"Tolta dalla guida: %1, %2.\n"_s.arg(tolta.localita, tolta.campi.descrizione);
}

// The entry with the data of the line in the place of its own.
CampiVoce CampiCambiati(CampiVoce campi, const QStringList& argomenti) {
    for (const DatoNominato& dato : DatiNominati(argomenti, 3)) {
        const QString nome = dato.nome.toLower();
        if (nome == "tipo"_L1) {
            campi.tipo = SenzaBlankInutili(Composto(dato.valore));
        } else if (nome == "descrizione"_L1) {
            campi.descrizione = SenzaBlankInutili(Composto(dato.valore));
        } else if (nome == "tempo"_L1 || nome == "tempososta"_L1) {
            LeggiTempo(dato.valore, campi);
        } else {
            throw WrongUsage(u"«%1» non è un dato di un'annotazione: tipo, descrizione o tempo."_s.arg(dato.nome));
        }
    }
    return campi;
}

void Cambia(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    ControllaArgomenti(richiesta, 4, 6,
                       u"Con --cambia si scrive: guida --cambia LOCALITA TIPO DESCRIZIONE, poi tipo=…, descrizione=… o "
                       "tempo=hh:mm."_s);
    const Annotazione detta = LeggiAnnotazione(richiesta.argomenti.first(3));
    std::ignore = CampiCambiati(detta.campi, richiesta.argomenti);
    Sessione sessione = apri();
    const std::vector<TipoGuida> tipi = CaricaTipiGuida(sessione.Archivio());
    Transaction transaction(sessione.Archivio());
    const VoceGuida voce = TrovaVoce(sessione.Archivio(), tipi, detta);
    const CampiVoce campi = CampiCambiati(CampiDellaVoce(voce), richiesta.argomenti);
    SalvaVoce(sessione.Archivio(), voce.localita, voce, tipi, campi);
    transaction.Commit();
    uscita << u"Cambiata nella guida: %1, %2.\n"_s.arg(detta.localita, campi.descrizione);
}

// The guide of the localities of a trip, each entry once.
std::vector<Record> RecordDellaMeta(Sessione& sessione, const QString& codice) {
    const ReadSnapshot momento(sessione.Archivio());
    const QString completo = sessione.ApriMeta(codice).meta.codice;
    const LocalitaDellaMeta localita = LocalitaDellItinerario(sessione.Archivio(), completo);
    if (localita.nomi.empty()) throw Failure(SenzaTappeMemorizzate().text);
    std::map<std::int64_t, Record> trovati;
    PerOgniRecordDelle(sessione.Archivio(), localita.nomi,
                       [&](std::size_t, Record&& record) { trovati.try_emplace(record.id, std::move(record)); });
    std::vector<Record> record;
    record.reserve(trovati.size());
    for (auto& [id, trovato] : trovati) record.push_back(std::move(trovato));
    SortRecords(record, {guida::Localita, guida::CodiceGuida, guida::Descrizione});
    return record;
}

std::vector<Record> RecordDaMostrare(Sessione& sessione, const Richiesta& richiesta) {
    if (richiesta.opzioni.contains(u"meta"_s)) return RecordDellaMeta(sessione, richiesta.opzioni.value(u"meta"_s));
    Search ricerca{Table::GuidaCitta, {}};
    if (!richiesta.argomenti.isEmpty()) {
        ricerca.conditions.push_back({guida::Localita, NamePattern::ForName(Composto(richiesta.argomenti.first()))});
    }
    return sessione.Archivio().Select(ricerca, {guida::Localita, guida::CodiceGuida, guida::Descrizione});
}

TabellaTesti TabellaDelleSoste(const std::vector<SostaProposta>& soste) {
    TabellaTesti tabella{{u"Località"_s, u"Tipo"_s, u"Descrizione"_s, u"Esito"_s}, {}, {}};
    for (const SostaProposta& sosta : soste) {
        tabella.righe.push_back({sosta.localita, sosta.tipo, sosta.descrizione, Testo(sosta.segno)});
    }
    return tabella;
}

void ScriviSoste(const std::vector<SostaProposta>& soste, ScrittoreJson& json) {
    json.ApreArray();
    for (const SostaProposta& sosta : soste) {
        json.ApreOggetto();
        const auto campo = [&](QStringView nome, const QString& testo) {
            json.Nome(nome);
            json.Testo(testo);
        };
        campo(u"descrizione", sosta.descrizione);
        campo(u"esito", Testo(sosta.segno));
        campo(u"localita", sosta.localita);
        campo(u"tipo", sosta.tipo);
        json.ChiudeOggetto();
    }
    json.ChiudeArray();
}

// Counts, for people behind the list when nothing is done; other programs get the list either way.
void ScriviEsito(const std::vector<SostaProposta>& soste, bool prova, Formato formato, QTextStream& uscita) {
    const TabellaTesti tabella = TabellaDelleSoste(soste);
    if (formato == Formato::Tsv) return ScriviTsv(tabella, uscita);
    if (formato == Formato::Json) {
        ScrittoreJson json(uscita);
        return ScriviSoste(soste, json);
    }
    if (prova && !soste.empty()) {
        ScriviAllineata(tabella, uscita);
        uscita << '\n';
    }
    uscita << ConteggioSoste(soste, !prova) << '\n';
}

void Importa(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    const bool prova = richiesta.opzioni.contains(u"prova"_s);
    const bool conColonne = richiesta.opzioni.contains(u"colonne"_s);
    if (!richiesta.argomenti.isEmpty() || richiesta.opzioni.size() > 1 + (prova ? 1 : 0) + (conColonne ? 1 : 0)) {
        throw WrongUsage(u"Con --importa si scrive: guida --importa FILE [--colonne nome=…,…] [--prova]."_s);
    }
    Sessione sessione = apri();
    Progress& progress = *richiesta.avanzamento;
    Gazzettino gazzettino(FileDelProgramma(u"luoghi.dat"_s));
    const QString file = richiesta.opzioni.value(u"importa"_s);
    std::optional<PostoColonne> colonne;
    if (conColonne) colonne = LeggiColonne(richiesta.opzioni.value(u"colonne"_s), PrimaRigaSoste(file));
    const std::vector<SostaLetta> lette = LeggiSoste(file, colonne);
    auto soste = ProponiSoste(sessione.Archivio(), gazzettino, lette, progress);
    if (!soste) return;
    if (!prova && SosteNuove(*soste) > 0) AggiungiSoste(sessione.Archivio(), *soste);
    ScriviEsito(*soste, prova, richiesta.formato, uscita);
}

}  // namespace

void EseguiGuida(const ApriSessione& apri, const Richiesta& richiesta, QTextStream& uscita) {
    if (richiesta.opzioni.contains(u"aggiungi"_s)) return Aggiungi(apri, richiesta, uscita);
    if (richiesta.opzioni.contains(u"cambia"_s)) return Cambia(apri, richiesta, uscita);
    if (richiesta.opzioni.contains(u"togli"_s)) return Togli(apri, richiesta, uscita);
    if (richiesta.opzioni.contains(u"importa"_s)) return Importa(apri, richiesta, uscita);
    ControllaMostra(richiesta);
    if (richiesta.opzioni.contains(u"pdf"_s)) return richiesta.stampe.guida(apri, richiesta, uscita);
    Sessione sessione = apri();
    std::optional<ReadSnapshot> momento(std::in_place, sessione.Archivio());
    const std::vector<Record> record = RecordDaMostrare(sessione, richiesta);
    const std::vector<TipoGuida> tipi = CaricaTipiGuida(sessione.Archivio());
    momento.reset();
    if (richiesta.formato == Formato::Json) {
        ScrittoreJson json(uscita);
        ScriviRecord(Table::GuidaCitta, record, json);
    } else if (richiesta.formato == Formato::Tsv) {
        ScriviTsv(TestiDeiRecord(Table::GuidaCitta, record), uscita);
    } else if (record.empty()) {
        uscita << (richiesta.argomenti.isEmpty()
                       ? u"Nessuna annotazione nella guida.\n"_s
                       : u"Nessuna annotazione nella guida per «%1».\n"_s.arg(richiesta.argomenti.first()));
    } else {
        ScriviAllineata(TabellaDellaGuida(record, tipi), uscita);
    }
}

}  // namespace cronovia
