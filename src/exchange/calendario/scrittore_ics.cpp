// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/calendario/scrittore_ics.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <cmath>

#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMassimoRigaIcs = 75;  // bytes, without the line's end
constexpr qsizetype kByteIdentita = 16;

// A line is folded between two characters of UTF-8, never within one.
bool SeguitoDiCarattere(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

QString TestoIcs(const QString& testo) {
    QString scritto = VisibileARighe(testo);
    scritto.replace(u'\\', u"\\\\"_s).replace(u';', u"\\;"_s).replace(u',', u"\\,"_s);
    return scritto.replace(u'\n', u"\\n"_s);
}

QString DataIcs(NumeroGiorno giorno) {
    const Gma gma = GmaDelGiorno(giorno);
    return Zero(gma.anno, 4) + Zero(gma.mese, 2) + Zero(gma.giorno, 2);
}

// To the minute, as everything is shown; past midnight it is the next day.
QString MomentoIcs(Istante istante) {
    const auto minuti = static_cast<int>(std::lround(istante.ora.Valore() * 60 / 100));
    const int giorni = minuti / kMinutiDelGiorno;
    const int resto = minuti % kMinutiDelGiorno;
    return DataIcs(istante.data + giorni) + u'T' + Zero(resto / 60, 2) + Zero(resto % 60, 2) + u"00"_s;
}

class ScrittoreIcs {
  public:
    void Riga(QStringView nome, const QString& valore) {
        const QByteArray byte = nome.toUtf8() + ':' + valore.toUtf8();
        qsizetype inizio = 0;
        while (byte.size() - inizio > Spazio(inizio)) {
            qsizetype fine = inizio + Spazio(inizio);
            while (SeguitoDiCarattere(byte[fine])) --fine;
            scritto_ += byte.sliced(inizio, fine - inizio) + "\r\n ";
            inizio = fine;
        }
        scritto_ += byte.sliced(inizio) + "\r\n";
    }
    [[nodiscard]] const QByteArray& Scritto() const { return scritto_; }

  private:
    // The blank before what goes on counts.
    static qsizetype Spazio(qsizetype inizio) { return inizio == 0 ? kMassimoRigaIcs : kMassimoRigaIcs - 1; }

    QByteArray scritto_;
};

QString Identita(const QString& destinazione, const QString& chiave) {
    const QByteArray impronta =
        QCryptographicHash::hash((Maiuscolo(destinazione) + u'\n' + chiave).toUtf8(), QCryptographicHash::Sha256)
            .left(kByteIdentita);
    return QString::fromLatin1(impronta.toHex()) + u"@cronovia"_s;
}

void ScriviTempi(const Evento& evento, ScrittoreIcs& ics) {
    if (evento.tuttoIlGiorno) {
        ics.Riga(u"DTSTART;VALUE=DATE", DataIcs(evento.inizio.data));
        ics.Riga(u"DTEND;VALUE=DATE", DataIcs(evento.inizio.data + 1));
        ics.Riga(u"TRANSP", u"TRANSPARENT"_s);
        return;
    }
    const QString inizio = MomentoIcs(evento.inizio);
    const QString fine = evento.fine ? MomentoIcs(*evento.fine) : inizio;
    ics.Riga(u"DTSTART", inizio);
    if (fine > inizio) ics.Riga(u"DTEND", fine);  // without one it ends where it begins
}

void ScriviAvviso(const Evento& evento, ScrittoreIcs& ics) {
    if (!evento.minutiAvviso) return;
    ics.Riga(u"BEGIN", u"VALARM"_s);
    ics.Riga(u"ACTION", u"DISPLAY"_s);
    ics.Riga(u"DESCRIPTION", TestoIcs(evento.titolo));
    ics.Riga(u"TRIGGER", u"-PT%1M"_s.arg(*evento.minutiAvviso));
    ics.Riga(u"END", u"VALARM"_s);
}

}  // namespace

QByteArray CalendarioIcs(const QString& destinazione, std::span<const Evento> eventi, const QDateTime& adesso) {
    const QString scritto = adesso.toUTC().toString(u"yyyyMMdd'T'HHmmss'Z'"_s);
    ScrittoreIcs ics;
    ics.Riga(u"BEGIN", u"VCALENDAR"_s);
    ics.Riga(u"VERSION", u"2.0"_s);
    ics.Riga(u"PRODID", u"-//Cronovia//Cronovia//IT"_s);
    ics.Riga(u"CALSCALE", u"GREGORIAN"_s);
    ics.Riga(u"X-WR-CALNAME", TestoIcs(PrimoMaiuscolo(destinazione)));
    for (const Evento& evento : eventi) {
        ics.Riga(u"BEGIN", u"VEVENT"_s);
        ics.Riga(u"UID", Identita(destinazione, evento.chiave));
        ics.Riga(u"DTSTAMP", scritto);
        ScriviTempi(evento, ics);
        ics.Riga(u"SUMMARY", TestoIcs(evento.titolo));
        if (!evento.luogo.isEmpty()) ics.Riga(u"LOCATION", TestoIcs(evento.luogo));
        if (!evento.descrizione.isEmpty()) ics.Riga(u"DESCRIPTION", TestoIcs(evento.descrizione));
        if (evento.posizione) {
            ics.Riga(u"GEO",
                     TestoGradi(evento.posizione->latitudine) + u';' + TestoGradi(evento.posizione->longitudine));
        }
        ScriviAvviso(evento, ics);
        ics.Riga(u"END", u"VEVENT"_s);
    }
    ics.Riga(u"END", u"VCALENDAR"_s);
    return ics.Scritto();
}

}  // namespace cronovia
