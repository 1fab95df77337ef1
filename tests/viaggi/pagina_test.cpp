// SPDX-License-Identifier: GPL-3.0-or-later
// The phone page: sound HTML that tells all of the journey, and takes no name for markup.
#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QProcess>
#include <QRegularExpression>

#include "app/sessione.h"
#include "exchange/iei/importa_mete.h"
#include "exchange/pagina/pagina_telefono.h"
#include "itinerary/posizioni.h"
#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

// What a checker of HTML has to say; empty when nothing.
QString Difetti(const QByteArray& pagina) {
    QProcess tidy;
    tidy.start(u"tidy"_s, {u"-quiet"_s, u"-errors"_s, u"-utf8"_s});
    tidy.write(pagina);
    tidy.closeWriteChannel();
    EXPECT_TRUE(tidy.waitForFinished()) << "is tidy installed?";
    return QString::fromUtf8(tidy.readAllStandardError());
}

class Pagina : public testing::Test {
  protected:
    MetaLetta Importa(const QString& path, const QString& codice) {
        ImportaMete({sessione_.Archivio(), path, {}}, progress_);
        return sessione_.LeggiMeta(codice, LeggeAnche::Posizioni);
    }
    QString Html(MetaLetta& letta) {
        const MetaAperta& aperta = letta.aperta;
        Gazzettino gazzettino(QStringLiteral(CRONOVIA_PLACES "/luoghi.dat"));
        const std::vector<PosizioneTappa> posizioni =
            PosizioniDelViaggio(letta.confermate, gazzettino, aperta.tappe, aperta.meta.nazione);
        const Coste coste = LeggiCoste(QStringLiteral(CRONOVIA_PLACES "/coste.dat"));
        const Cronovia cronovia = *Sessione::Calcola(letta, {}, progress_).cronovia;
        const QByteArray pagina = PaginaTelefono({aperta.meta, cronovia, aperta.tappe, posizioni, coste});
        EXPECT_EQ(Difetti(pagina).toStdString(), "");
        return QString::fromUtf8(pagina);
    }

    prova::CartellaDiProva cartella_;
    Sessione sessione_{cartella_.Path()};
    Progress progress_;
};

TEST_F(Pagina, TellsAllOfTheJourney) {
    for (const QString& nome : {u"capo-nord"_s, u"sicilia"_s, u"provenza"_s}) {
        SCOPED_TRACE(nome.toStdString());
        ImportaMete({sessione_.Archivio(), QStringLiteral(CRONOVIA_EXAMPLES "/") + nome + u".iei"_s, {}}, progress_);
    }
    for (const QString& codice : {u"000001"_s, u"000002"_s, u"000003"_s}) {
        SCOPED_TRACE(codice.toStdString());
        MetaLetta letta = sessione_.LeggiMeta(codice, LeggeAnche::Posizioni);
        const Cronovia cronovia = *Sessione::Calcola(letta, {}, progress_).cronovia;
        const QString html = Html(letta);
        EXPECT_LT(html.toUtf8().size(), 400 * 1024);
        EXPECT_FALSE(html.contains(QRegularExpression(u"(src|href)=\"(?!#|geo:)"_s))) << "refers to something outside";
        const QString testo = QString(html).remove(QRegularExpression(u"<title>[^<]*</title>"_s));
        qsizetype qui = 0;  // each row's place, in the order of the rows
        qsizetype voci = 0;
        for (const RigaCronovia& riga : cronovia.righe) {
            const RigaCalcolo& tappa = cronovia.tabella.righe[static_cast<std::size_t>(riga.tappa)];
            const bool guida = riga.genere == GenereRiga::Guida;
            voci += guida ? 1 : 0;
            const QString atteso = guida ? (*tappa.voci)[static_cast<std::size_t>(riga.voce)].descrizione
                                         : (riga.verso ? u"verso "_s : QString()) + tappa.tappa.localita;
            qui = testo.indexOf(u'>' + atteso.toHtmlEscaped() + u'<', qui + 1);
            ASSERT_GT(qui, 0) << atteso.toStdString();
        }
        const QString elenco = html.section(u"class=\"ore\""_s, 1);
        EXPECT_EQ(elenco.count(u"</span>\n</li>"_s), voci) << "each entry of the guide once";
        for (int giorno = 1; giorno <= cronovia.fine->giorni; ++giorno) {
            EXPECT_EQ(html.count(u"id=\"giorno-%1\""_s.arg(giorno)), 1);
        }
    }
}

TEST_F(Pagina, TakesNothingForMarkup) {
    const QString ostile = u"\"><img src=x onerror=alert(1)>&amp;</style></script>"_s;
    MetaLetta letta = Importa(QStringLiteral(CRONOVIA_EXAMPLES "/provenza.iei"), u"000003"_s);
    MetaAperta& aperta = letta.aperta;
    aperta.meta.localita = ostile;
    const struct {
        QString link;
        QString telefono;
        QString atteso;
    } casi[] = {
        {u"javascript:alert(1)"_s, u"+39 0586 12 34"_s, u"href=\"tel:+3905861234\""_s},
        {u"https://museo.example/?a=1&b=\"2\""_s, u"chiedere"_s, u"Telefono: chiedere"_s},
        {u"https://museo.example/?a=1&b=2"_s, u"112"_s, u"href=\"https://museo.example/?a=1&amp;b=2\""_s},
    };
    for (std::size_t i = 0; i < std::size(casi); ++i) {
        Tappa& tappa = aperta.tappe[i + 1];
        Vincoli vincoli;
        vincoli.nota = *Appunto<vincoli::Nota>::Da(ostile);
        vincoli.link = *Appunto<vincoli::Link>::Da(casi[i].link);
        vincoli.telefono = *Appunto<vincoli::Telefono>::Da(casi[i].telefono);
        vincoli.arrivo = OreDiArrivo::Da(OraFissa::Da(23 * 60), std::nullopt);
        tappa.vincoli = vincoli;
        tappa.localita = u"<b>"_s + ostile + QString::number(i);
        tappa.numStrada = u"<!--"_s;
    }
    const QString html = Html(letta);
    EXPECT_FALSE(html.contains(u"<img"_s) || html.contains(u"<b>"_s) || html.contains(u"<!--"_s));
    EXPECT_EQ(html.count(u"<a href=\"javascript"_s), 0);
    for (const auto& caso : casi) EXPECT_TRUE(html.contains(caso.atteso)) << caso.atteso.toStdString();
    EXPECT_EQ(html.count(u"Non prima delle 23:00"_s), std::ssize(casi)) << "each wait is told";
    // The one program that may run is the page's own.
    const QByteArray programma = html.section(u"<script>"_s, 1).section(u"</script>"_s, 0, 0).toUtf8();
    const QByteArray impronta = QCryptographicHash::hash(programma, QCryptographicHash::Sha256).toBase64();
    EXPECT_TRUE(html.contains(u"script-src 'sha256-"_s + QString::fromLatin1(impronta).toHtmlEscaped()));
}

}  // namespace
}  // namespace cronovia
