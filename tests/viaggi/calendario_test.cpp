// SPDX-License-Identifier: GPL-3.0-or-later
// The calendar of a journey, as a library that others read calendars with understands it.
#include <gtest/gtest.h>
#include <libical/ical.h>

#include <QDateTime>
#include <QSet>
#include <QTimeZone>
#include <memory>

#include "app/sessione.h"
#include "calendar/testo.h"
#include "exchange/calendario/scrittore_ics.h"
#include "exchange/iei/importa_mete.h"
#include "support/prova.h"
#include "trips/mete.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

const QDateTime kAdesso(QDate(2027, 1, 2), QTime(3, 4, 5), QTimeZone::utc());

using ComponenteIcs = std::unique_ptr<icalcomponent, decltype(&icalcomponent_free)>;

QString TestoDi(const char* testo) { return QString::fromUtf8(testo == nullptr ? "" : testo); }

QString Momento(const icaltimetype& t) {
    const QDateTime quando(QDate(t.year, t.month, t.day), QTime(t.hour, t.minute));
    return quando.toString(t.is_date != 0 ? u"yyyy-MM-dd"_s : u"yyyy-MM-dd hh:mm"_s);
}

QString Momento(Istante istante) {
    const Gma gma = GmaDelGiorno(istante.data);
    const QDateTime giorno(QDate(gma.anno, gma.mese, gma.giorno), QTime(0, 0));
    return giorno.addSecs(60 * qRound(istante.ora.Valore() * 0.6F)).toString(u"yyyy-MM-dd hh:mm"_s);
}

class Calendario : public testing::Test {
  protected:
    // Lines of at most 75 bytes, each with its end, that are whole characters; then what the library makes of them.
    ComponenteIcs Letto(const QByteArray& ics) {
        EXPECT_TRUE(ics.endsWith("END:VCALENDAR\r\n"));
        for (const QByteArray& riga : ics.chopped(2).split('\n')) {
            EXPECT_LE(riga.size() - (riga.endsWith('\r') ? 1 : 0), 75) << riga.toStdString();
            EXPECT_FALSE(QString::fromUtf8(riga).contains(QChar::ReplacementCharacter)) << riga.toStdString();
        }
        EXPECT_EQ(ics.count('\n'), ics.count("\r\n"));
        ComponenteIcs calendario(icalparser_parse_string(ics.constData()), &icalcomponent_free);
        EXPECT_NE(calendario, nullptr);
        EXPECT_NE(icalrestriction_check(calendario.get()), 0);
        icalcomponent_strip_errors(calendario.get());
        EXPECT_EQ(icalcomponent_count_errors(calendario.get()), 0);
        return calendario;
    }

    // Every event comes back with all that it says.
    void TornanoTutti(const QByteArray& ics, const std::vector<Evento>& eventi) {
        const ComponenteIcs calendario = Letto(ics);
        QSet<QString> identita;
        std::size_t i = 0;
        for (icalcomponent* e = icalcomponent_get_first_component(calendario.get(), ICAL_VEVENT_COMPONENT);
             e != nullptr; e = icalcomponent_get_next_component(calendario.get(), ICAL_VEVENT_COMPONENT), ++i) {
            ASSERT_LT(i, eventi.size());
            const Evento& evento = eventi[i];
            SCOPED_TRACE(evento.chiave.toStdString());
            identita.insert(TestoDi(icalcomponent_get_uid(e)));
            EXPECT_EQ(TestoDi(icalcomponent_get_summary(e)), evento.titolo);
            EXPECT_EQ(TestoDi(icalcomponent_get_location(e)), evento.luogo);
            EXPECT_EQ(TestoDi(icalcomponent_get_description(e)), evento.descrizione);
            const icaltimetype inizio = icalcomponent_get_dtstart(e);
            EXPECT_EQ(icaltime_is_utc(inizio), 0);
            EXPECT_EQ(inizio.is_date != 0, evento.tuttoIlGiorno);
            EXPECT_EQ(Momento(inizio), Momento(evento.inizio).left(evento.tuttoIlGiorno ? 10 : 16));
            if (!evento.tuttoIlGiorno) {
                EXPECT_EQ(Momento(icalcomponent_get_dtend(e)), Momento(evento.fine.value_or(evento.inizio)));
            }
            icalcomponent* avviso = icalcomponent_get_first_component(e, ICAL_VALARM_COMPONENT);
            EXPECT_EQ(avviso != nullptr, evento.minutiAvviso.has_value());
            icalproperty* geo = icalcomponent_get_first_property(e, ICAL_GEO_PROPERTY);
            EXPECT_EQ(geo != nullptr, evento.posizione.has_value());
            if (geo != nullptr) {
                EXPECT_NEAR(icalproperty_get_geo(geo).lat, evento.posizione->latitudine, 1e-4);
            }
        }
        EXPECT_EQ(i, eventi.size());
        EXPECT_EQ(identita.size(), static_cast<qsizetype>(eventi.size())) << "two events with one identity";
    }

    std::vector<Evento> Eventi(const QString& codice, bool giornate) {
        const auto [aperta, esito, confermate] = sessione_.ApriECalcola(codice, {}, progress_, LeggeAnche::Posizioni);
        Gazzettino gazzettino(QStringLiteral(CRONOVIA_PLACES "/luoghi.dat"));
        const auto posizioni = PosizioniDelViaggio(confermate, gazzettino, aperta.tappe, aperta.meta.nazione);
        return EventiDelViaggio(*esito.cronovia, *aperta.meta.dataInizio, posizioni, giornate);
    }

    prova::CartellaDiProva cartella_;
    Sessione sessione_{cartella_.Path()};
    Progress progress_;
};

TEST_F(Calendario, GivesEveryEventOfEveryJourney) {
    QSet<QString> generi;
    for (const QString& cartella :
         {QStringLiteral(CRONOVIA_TEST_DATA "/journeys"), QStringLiteral(CRONOVIA_EXAMPLES)}) {
        for (const QString& nome : QDir(cartella).entryList({u"*.iei"_s}, QDir::Files)) {
            SCOPED_TRACE(nome.toStdString());
            ImportaMete({sessione_.Archivio(), cartella + u'/' + nome, {}}, progress_);
            for (const QString& codice : CodiciDelleMete(sessione_.Archivio())) {
                const MetaAperta aperta = sessione_.ApriMeta(codice);
                if (aperta.meta.dataInizio && !aperta.tappe.empty()) {
                    const std::vector<Evento> eventi = Eventi(codice, true);
                    for (const Evento& evento : eventi) generi.insert(evento.chiave.section(u'/', 0, 0));
                    TornanoTutti(CalendarioIcs(aperta.meta.localita, eventi, kAdesso), eventi);
                }
                CancellaMeta(sessione_.Archivio(), codice, progress_);
            }
        }
    }
    EXPECT_EQ(generi, QSet<QString>({u"casa"_s, u"giorno"_s, u"guida"_s, u"nondopo"_s, u"nonprima"_s, u"notte"_s,
                                     u"riposo"_s, u"sosta"_s, u"traghetto"_s}));
}

// Every kind of driving, stop, night and ferry time of the schedule is in it, and nothing lies beside it.
TEST_F(Calendario, HoldsTheWholeSchedule) {
    ImportaMete({sessione_.Archivio(), QStringLiteral(CRONOVIA_EXAMPLES "/provenza.iei"), {}}, progress_);
    const auto [aperta, esito, senza] = sessione_.ApriECalcola(u"000003"_s, {}, progress_);
    const Cronovia& cronovia = *esito.cronovia;
    const std::vector<Evento> eventi = Eventi(u"000003"_s, false);
    const auto quanti = [&](const QString& genere) {
        return std::count_if(eventi.begin(), eventi.end(),
                             [&](const Evento& e) { return e.chiave.startsWith(genere + u'/'); });
    };
    const auto marce = std::count_if(cronovia.righe.begin(), cronovia.righe.end(), [](const RigaCronovia& r) {
        return r.genere == GenereRiga::Marcia && r.tempo > 0_cent;
    });
    EXPECT_EQ(quanti(u"guida"_s), marce);
    EXPECT_EQ(quanti(u"notte"_s), cronovia.fine->giorni - 1);
    for (std::size_t i = 1; i < eventi.size(); ++i) EXPECT_LE(*eventi[i - 1].fine, eventi[i].inizio) << i;
    int giorno = 0;
    for (const Evento& evento : Eventi(u"000003"_s, true)) {
        if (!evento.tuttoIlGiorno) continue;
        EXPECT_EQ(evento.inizio.data, *aperta.meta.dataInizio + giorno++);
    }
    EXPECT_EQ(giorno, cronovia.fine->giorni);
    EXPECT_EQ(eventi.front().titolo, u"Torino → Cuneo, 98 km, A6 A33"_s);
}

TEST_F(Calendario, KeepsItsIdentitiesAndTakesNoNameForSyntax) {
    const QString cattivo = u"A;B,C\\nD\nEND:VEVENT\r\nBEGIN:VEVENT \"q\" è 🚐 "_s.repeated(9).trimmed();
    std::vector<Evento> eventi = {{u"guida/X/1"_s, cattivo, cattivo, cattivo, {NumeroGiorno(740000), 2350_cent}}};
    eventi[0].fine = Istante{NumeroGiorno(740000), 2475_cent};
    eventi[0].minutiAvviso = 90;
    const QByteArray prima = CalendarioIcs(u"Ro;ma"_s, eventi, kAdesso);
    const ComponenteIcs letto = Letto(prima);
    icalcomponent* evento = icalcomponent_get_first_component(letto.get(), ICAL_VEVENT_COMPONENT);
    EXPECT_EQ(icalcomponent_count_components(letto.get(), ICAL_VEVENT_COMPONENT), 1);
    EXPECT_EQ(TestoDi(icalcomponent_get_summary(evento)), VisibileARighe(cattivo));
    EXPECT_EQ(Momento(icalcomponent_get_dtend(evento)), Momento(*eventi[0].fine));
    eventi[0].titolo = u"Altro"_s;
    eventi[0].inizio = {NumeroGiorno(740001), 800_cent};
    const auto identita = [](const QByteArray& ics) { return ics.sliced(ics.indexOf("UID:"), 40); };
    EXPECT_EQ(identita(CalendarioIcs(u"Ro;ma"_s, eventi, kAdesso)), identita(prima));
    EXPECT_NE(identita(CalendarioIcs(u"ROMA"_s, eventi, kAdesso)), identita(prima));
}

}  // namespace
}  // namespace cronovia
