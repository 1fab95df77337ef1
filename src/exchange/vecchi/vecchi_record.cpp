// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/vecchi/vecchi_record.h"

#include <algorithm>
#include <array>

#include "calendar/date.h"
#include "calendar/testo.h"
#include "trips/meta.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

namespace vecchia {
constexpr std::size_t kLocalita = 0;
constexpr std::size_t kNazione = 1;
constexpr std::size_t kDataInizio = 2;
constexpr std::array<std::size_t, 9> kOrari = {3, 8, 9, 10, 11, 12, 13, 19, 20};
constexpr std::size_t kPrimaMedia = 4;
constexpr std::size_t kUltimaMedia = 7;
constexpr std::size_t kNumeroMeta = 14;
}  // namespace vecchia

bool SoloCifre(QStringView testo) {
    return std::all_of(testo.begin(), testo.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool SoloCifreEBlank(QString testo) { return SoloCifre(testo.remove(u' ')); }

bool TuttoVuoto(const RecordFisso& record) {
    return !record.Guasto() &&
           std::all_of(record.campi.begin(), record.campi.end(), [](const QString& campo) { return campo.isEmpty(); });
}

QString ConBlank(const QString& testo) { return testo.isEmpty() ? u" "_s : testo; }

// " 5061998" is "05061998": programs of that age wrote digits in their places with blanks for leading zeros.
QString BlankComeZeri(QString campo) { return campo.replace(u' ', u'0'); }

// Four digits, at most "2400".
bool Orario(const QString& campo) {
    const QString cifre = BlankComeZeri(campo);
    if (cifre.isEmpty()) return true;
    return cifre.size() == 4 && ValoreNumerico(cifre) <= 2400 && ValoreNumerico(cifre.right(2)) < 60;
}

bool InPosizione(std::size_t campo) {
    return campo == vecchia::kDataInizio ||
           std::find(vecchia::kOrari.begin(), vecchia::kOrari.end(), campo) != vecchia::kOrari.end();
}

bool Media(const QString& campo) {
    const QString testo = campo.trimmed();
    const int media = ValoreNumerico(testo);
    return testo.isEmpty() || (SoloCifre(testo) && media >= kMinimaMedia && media <= kMassimaMedia);
}

bool Illeggibili(const RecordFisso& record, std::initializer_list<std::size_t> campi) {
    return std::any_of(campi.begin(), campi.end(), [&](std::size_t campo) { return record.illeggibili[campo]; });
}

// Whether a field of a trip, beyond its names and its number, tells what it should.
bool Leggibile(const RecordFisso& record, std::size_t campo) {
    const QString& testo = record.campi[campo];
    if (record.illeggibili[campo]) return false;
    if (campo == vecchia::kDataInizio) return testo.isEmpty() || LeggiData(BlankComeZeri(testo));
    if (InPosizione(campo)) return SoloCifreEBlank(testo) && Orario(testo);
    if (campo >= vecchia::kPrimaMedia && campo <= vecchia::kUltimaMedia) return Media(testo);
    return SoloCifreEBlank(testo);
}

QString LocalitaDellaTappa(const RecordFisso& record) {
    const QString testo = record[0];
    return testo.left(testo.indexOf(u'*')).trimmed();
}

// "010230" as "01:02:30"; blanks are zeros, those at the end too.
QString Sosta(const QString& campo) {
    const QString cifre = BlankComeZeri(RiempiDopo(campo, 6, u'0'));
    if (!SoloCifre(cifre) || ValoreNumerico(cifre) == 0) return u" "_s;
    return cifre.left(2) + u':' + cifre.mid(2, 2) + u':' + cifre.mid(4, 2);
}

}  // namespace

const FormaRecord& FormaVecchieMete() {
    static const FormaRecord forma{128, {30, 19, 8, 4, 3, 3, 3, 3, 4, 4, 4, 4, 4, 4, 4, 2, 2, 2, 2, 4, 4}};
    return forma;
}

StatoRecord StatoVecchiaMeta(const RecordFisso& record) {
    if (TuttoVuoto(record)) return StatoRecord::Vuoto;
    if (record[vecchia::kLocalita].startsWith(".."_L1)) return StatoRecord::Saltato;
    const bool completa = !record[vecchia::kLocalita].isEmpty() && ValoreNumerico(record[vecchia::kNumeroMeta]) > 0 &&
                          SoloCifreEBlank(record.campi[vecchia::kNumeroMeta]);
    return completa && !Illeggibili(record, {vecchia::kLocalita, vecchia::kNazione, vecchia::kNumeroMeta})
               ? StatoRecord::Valido
               : StatoRecord::Guasto;
}

QString CodiceVecchiaMeta(const RecordFisso& record) { return Zero(ValoreNumerico(record[vecchia::kNumeroMeta]), 6); }

// The old order is that of the table but for the number, which stands behind the night hour.
VecchiaMeta LeggiVecchiaMeta(const RecordFisso& record, std::span<const QString> predefiniti) {
    VecchiaMeta meta{{CodiceVecchiaMeta(record)}, {}};
    for (std::size_t i = 0; i < record.campi.size(); ++i) {
        if (i == vecchia::kNumeroMeta) continue;
        const std::size_t campo = meta.valori.size();
        if (i < vecchia::kDataInizio || Leggibile(record, i)) {
            meta.valori.push_back(ConBlank(InPosizione(i) ? BlankComeZeri(record.campi[i]) : record[i]));
        } else {
            meta.sostituiti.push_back(static_cast<mete::Field>(campo));
            meta.valori.push_back(predefiniti[campo]);
        }
    }
    return meta;
}

const FormaRecord& FormaVecchieTappe() {
    static const FormaRecord forma{64, {24, 3, 1, 6}};
    return forma;
}

std::optional<int> NumeroVecchieTappe(const RecordFisso& testa) {
    const bool numeri =
        !testa[0].isEmpty() && SoloCifre(testa[0]) && !testa[1].isEmpty() && SoloCifre(testa[1]) && !testa.Guasto();
    if (!numeri || ValoreNumerico(testa[0]) != ValoreNumerico(testa[1])) return std::nullopt;
    return ValoreNumerico(testa[0]);
}

StatoRecord StatoVecchiaTappa(const RecordFisso& record) {
    if (record.Guasto() || !SoloCifre(record[1])) return StatoRecord::Guasto;
    const QString localita = LocalitaDellaTappa(record);
    const bool nome = !localita.isEmpty() && localita.front() >= u'A' && localita.front() <= u'Z';
    return nome ? StatoRecord::Valido : TuttoVuoto(record) ? StatoRecord::Vuoto : StatoRecord::Saltato;
}

std::vector<QString> ValoriVecchiaTappa(const RecordFisso& record) {
    const QString testo = record[0];
    const qsizetype asterisco = testo.indexOf(u'*');
    const QString strada = asterisco < 0 ? QString() : testo.mid(asterisco + 1).trimmed();
    return {LocalitaDellaTappa(record), record[1].isEmpty() ? u"0"_s : record[1], ConBlank(strada), ConBlank(record[2]),
            Sosta(record.campi[3])};
}

const FormaRecord& FormaVecchiaGuida() {
    static const FormaRecord forma{128, {30, 1, 60, 5, 1}};
    return forma;
}

StatoRecord StatoVecchiaVoce(const RecordFisso& record) {
    if (TuttoVuoto(record)) return StatoRecord::Vuoto;
    const bool valida = !record.Guasto() && !record[0].isEmpty() && !record[1].isEmpty() && SoloCifre(record[1]);
    return valida ? StatoRecord::Valido : StatoRecord::Guasto;
}

std::vector<QString> ValoriVecchiaVoce(const RecordFisso& record) {
    return {record[0], u'0' + record[1], ConBlank(record[2]), TempoVisita(record[3]),
            record[4].isEmpty() ? u"0"_s : record[4]};
}

QString TempoVisita(const QString& vecchio) {
    const qsizetype duePunti = vecchio.indexOf(u':');
    const QString cifre = duePunti < 0 ? RiempiPrima(vecchio, 4, u'0')
                                       : RiempiPrima(vecchio.left(duePunti), 2, u'0') +
                                             RiempiPrima(vecchio.mid(duePunti + 1).trimmed(), 2, u'0');
    return SoloCifre(cifre) ? cifre.left(2) + u':' + cifre.right(2) : u"00:00"_s;
}

}  // namespace cronovia
