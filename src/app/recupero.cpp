// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/recupero.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <utility>

#include "files/file_intero.h"
#include "trips/mete.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

const QString kFormato = u"recupero di Cronovia"_s;
constexpr int kVersione = 1;
constexpr qint64 kMassimiByte = 64LL << 20;
constexpr int kMassimiFile = 999;

QJsonObject InJson(const Meta& meta) {
    QJsonObject json;
    const std::vector<QString> valori = ValoriDellaMeta(meta);
    for (std::size_t i = 0; i < valori.size(); ++i) {
        json.insert(Definition(Table::MeteVandro).fields[i].name, valori[i]);
    }
    const std::vector<QString> aggiunti = ValoriAggiunti(meta);
    if (!aggiunti.empty()) {
        json.insert(u"aggiunti"_s, QJsonArray::fromStringList({aggiunti.begin(), aggiunti.end()}));
    }
    return json;
}

Meta MetaDaJson(const QJsonValue& json) {
    Record record;
    for (const FieldDefinition& campo : Definition(Table::MeteVandro).fields) {
        record.values.push_back(json[campo.name].toString());
    }
    Meta meta = MetaDaRecord(record);
    std::vector<QString> aggiunti(scadenze::kCampi);
    for (std::size_t i = 0; i < aggiunti.size(); ++i) {
        aggiunti[i] = json["aggiunti"_L1][static_cast<qsizetype>(i)].toString();
    }
    LeggiAggiunti(aggiunti, meta);
    return meta;
}

QJsonArray InJson(const Durata& durata) { return {durata.giorni, durata.ore, durata.minuti}; }

Durata DurataDaJson(const QJsonValue& json) { return {json[0].toInt(), json[1].toInt(), json[2].toInt()}; }

// A stage and what is typed for one have these in common.
template <typename T>
QJsonObject StradaInJson(const T& tappa) {
    return {{u"localita"_s, tappa.localita},
            {u"strada"_s, tappa.numStrada},
            {u"km"_s, tappa.km},
            {u"kmDaIndicare"_s, tappa.kmDaIndicare},
            {u"kmStimati"_s, tappa.kmStimati},
            {u"tipo"_s, LetteraTipoStrada(tappa.tipo)},
            {u"sosta"_s, InJson(tappa.sosta)},
            {u"fineGiorno"_s, tappa.fineGiorno}};
}

template <typename T>
T StradaDaJson(const QJsonValue& json) {
    T tappa;
    tappa.localita = json["localita"_L1].toString();
    tappa.numStrada = json["strada"_L1].toString();
    tappa.km = json["km"_L1].toInt();
    tappa.kmDaIndicare = json["kmDaIndicare"_L1].toBool();
    tappa.kmStimati = json["kmStimati"_L1].toBool();
    tappa.tipo = LeggiTipoStrada(json["tipo"_L1].toString());
    tappa.sosta = DurataDaJson(json["sosta"_L1]);
    tappa.fineGiorno = json["fineGiorno"_L1].toBool();
    return tappa;
}

QJsonArray InJson(const RigheItinerario& righe) {
    QJsonArray json;
    for (const Tappa& tappa : righe) {
        QJsonObject riga = StradaInJson(tappa);
        if (tappa.vincoli) {
            const std::vector<QString> valori = ValoriDeiVincoli(tappa.vincoli.Valore());
            riga.insert(u"vincoli"_s, QJsonArray::fromStringList({valori.begin(), valori.end()}));
        }
        json.append(riga);
    }
    return json;
}

RigheItinerario RigheDaJson(const QJsonValue& json) {
    RigheItinerario righe;
    for (const QJsonValue riga : json.toArray()) {
        Tappa& tappa = righe.emplace_back(StradaDaJson<Tappa>(riga));
        std::vector<QString> valori(vincoli::kCampi);
        for (std::size_t i = 0; i < valori.size(); ++i) {
            valori[i] = riga["vincoli"_L1][static_cast<qsizetype>(i)].toString();
        }
        tappa.vincoli = LeggiVincoli(valori).vincoli;
    }
    return righe;
}

QJsonObject InJson(const CampiTappa& campi) {
    QJsonObject json = StradaInJson(campi);
    json.insert(u"kmProgressivi"_s, campi.kmProgressivi);
    return json;
}

QJsonObject InJson(const VoceSospesa& voce) {
    return {{u"localita"_s, voce.localita}, {u"mostrata"_s, voce.mostrata}, {u"testo"_s, voce.scritti.descrizione},
            {u"tipo"_s, voce.scritti.tipo}, {u"ore"_s, voce.scritti.ore},   {u"minuti"_s, voce.scritti.minuti}};
}

QByteArray InByte(const LavoroSospeso& lavoro, const QDateTime& adesso) {
    QJsonObject json{{u"formato"_s, kFormato},
                     {u"versione"_s, kVersione},
                     {u"scritto"_s, adesso.toString(Qt::ISODate)},
                     {u"letta"_s, InJson(lavoro.letta.meta)},
                     {u"tappeLette"_s, InJson(lavoro.letta.tappe)},
                     {u"caricati"_s, InJson(lavoro.caricati)},
                     {u"campi"_s, InJson(lavoro.campi)},
                     {u"righe"_s, InJson(lavoro.righe)},
                     {u"riga"_s, lavoro.riga}};
    if (lavoro.tappa) json.insert(u"tappa"_s, InJson(*lavoro.tappa));
    if (lavoro.voce) json.insert(u"voce"_s, InJson(*lavoro.voce));
    return QJsonDocument(json).toJson();
}

std::optional<Recupero::Trovato> DaByte(const QByteArray& byte) {
    const QJsonObject json = QJsonDocument::fromJson(byte).object();
    if (json["formato"_L1].toString() != kFormato || json["versione"_L1].toInt() != kVersione) return std::nullopt;
    LavoroSospeso lavoro{{MetaDaJson(json["letta"_L1]), RigheDaJson(json["tappeLette"_L1])},
                         MetaDaJson(json["caricati"_L1]),
                         MetaDaJson(json["campi"_L1]),
                         RigheDaJson(json["righe"_L1]),
                         std::max(1, json["riga"_L1].toInt()),
                         {},
                         {}};
    if (const QJsonValue tappa = json["tappa"_L1]; tappa.isObject()) {
        lavoro.tappa = StradaDaJson<CampiTappa>(tappa);
        lavoro.tappa->kmProgressivi = tappa["kmProgressivi"_L1].toBool();
    }
    if (const QJsonValue voce = json["voce"_L1]; voce.isObject()) {
        lavoro.voce = {voce["localita"_L1].toString(),
                       voce["mostrata"_L1].toString(),
                       {voce["testo"_L1].toString(), voce["tipo"_L1].toString(), voce["ore"_L1].toInt(),
                        voce["minuti"_L1].toInt()}};
    }
    return Recupero::Trovato{std::move(lavoro), QDateTime::fromString(json["scritto"_L1].toString(), Qt::ISODate)};
}

// Whether a window that lives holds the file.
bool InMano(const QString& file) {
    QLockFile presa(file + u".presa"_s);
    presa.setStaleLockTime(0);
    return !presa.tryLock(0) && presa.error() == QLockFile::LockFailedError;
}

}  // namespace

QStringList Differenze(const LavoroSospeso& lavoro) {
    QStringList righe = Differenze({lavoro.caricati, lavoro.letta.tappe}, {lavoro.campi, lavoro.righe});
    if (lavoro.tappa) righe += u"tappa che stavi scrivendo: %1"_s.arg(lavoro.tappa->localita);
    if (lavoro.voce) {
        righe += u"annotazione che stavi scrivendo per %1: %2"_s.arg(lavoro.voce->localita,
                                                                     lavoro.voce->scritti.descrizione.trimmed());
    }
    return righe;
}

bool Recupero::Prendi(const QString& file) {
    auto presa = std::make_unique<QLockFile>(file + u".presa"_s);
    presa->setStaleLockTime(0);
    const bool mia = presa->tryLock(0) || presa->error() != QLockFile::LockFailedError;  // then the writing tells
    if (!mia) return false;
    presa_ = std::move(presa);
    file_ = file;
    return true;
}

void Recupero::Segui(const std::optional<LavoroSospeso>& lavoro, const QDateTime& adesso) {
    if (lavoro == scritto_ && (!lavoro || QFile::exists(file_))) return;
    if (!lavoro) {
        QFile::remove(file_);
        presa_.reset();
    } else {
        const QDir cartella(cartella_);
        for (int i = 1; !presa_ && i <= kMassimiFile; ++i) {
            const QString file = cartella.filePath(i == 1 ? u"Cronovia.recupero"_s : u"Cronovia-%1.recupero"_s.arg(i));
            if (!QFile::exists(file)) Prendi(file);
        }
        if (!presa_) throw Failure(u"I file di recupero in questa cartella sono troppi."_s);
        FileIntero file(file_);
        file.Scrivi(InByte(*lavoro, adesso));
        file.Chiudi();
    }
    scritto_ = lavoro;
}

QStringList Recupero::Rimasti() const {
    const QDir cartella(cartella_);
    // What a window left behind that was killed while it wrote.
    for (const QString& nome : cartella.entryList({u"Cronovia*.recupero.??????"_s}, QDir::Files)) {
        QFile::remove(cartella.filePath(nome));
    }
    QStringList file;
    for (const QString& nome : cartella.entryList({u"Cronovia*.recupero"_s}, QDir::Files, QDir::Name)) {
        const QString rimasto = cartella.filePath(nome);
        if (!InMano(rimasto)) file += rimasto;
    }
    return file;
}

Recupero::Trovato Recupero::Leggi(const QString& file) const {
    QFile aperto(file);
    if (!aperto.open(QIODevice::ReadOnly)) {
        throw Failure(
            u"Il file di recupero %1 non si può leggere: controlla i permessi."_s.arg(QDir::toNativeSeparators(file)));
    }
    if (std::optional<Trovato> trovato = DaByte(aperto.read(kMassimiByte))) return std::move(*trovato);
    aperto.close();
    const QString scartato = file + u".illeggibile"_s;
    QFile::remove(scartato);
    QFile::rename(file, scartato);
    throw Failure(
        u"Il file di recupero %1 è incompleto o non è di Cronovia: non si può riprendere, ed è stato messo da "
        "parte come %2. L'archivio è intatto."_s.arg(QDir::toNativeSeparators(file),
                                                     QDir::toNativeSeparators(scartato)));
}

void Recupero::Riprendi(const QString& file, const LavoroSospeso& lavoro) {
    if (!Prendi(file)) throw Failure(u"Questo lavoro è già aperto in un'altra finestra."_s);
    scritto_ = lavoro;
}

}  // namespace cronovia
