// SPDX-License-Identifier: GPL-3.0-or-later
// Routes of navigators: what they become, what is refused, and that ours come back.
#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QStringConverter>

#include "exchange/iei/importa_mete.h"
#include "exchange/navigatori/esporta_percorso.h"
#include "exchange/navigatori/importa_navigatore.h"
#include "itinerary/itinerari.h"
#include "support/archivio.h"
#include "trips/mete.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class Navigatore : public testing::Test {
  protected:
    QString File(const QString& nome, const QByteArray& byte) {
        cartella_.Crea();
        const QString path = cartella_.Path() + u'/' + nome;
        prova::ScriviFile(path, byte);
        return path;
    }
    // "TORINO, ASTI 49 P": the stages with their kilometres.
    QString Tappe(const QString& path) {
        const auto percorso = LeggiPercorsoNavigatore(path, gazzettino_);
        if (!percorso) return u"nessun percorso"_s;
        QStringList tappe;
        for (const Tappa& tappa : percorso->tappe) {
            tappe +=
                tappa.localita +
                (tappa.km > 0 ? u' ' + QString::number(tappa.km) + u' ' + LetteraTipoStrada(tappa.tipo) : QString());
        }
        return tappe.join(u", "_s);
    }

    prova::CartellaDiProva cartella_;
    Gazzettino gazzettino_{QStringLiteral(CRONOVIA_PLACES "/luoghi.dat")};
};

struct CasoNavigatore {
    const char* nome;
    QByteArray contenuto;
    const char* atteso;
};

QByteArray Utf16(const QString& testo, QStringConverter::Encoding ordine = QStringConverter::Utf16LE) {
    return QStringEncoder(ordine, QStringConverter::Flag::WriteBom).encode(testo);
}

const QString kDati = QStringLiteral(CRONOVIA_TEST_DATA "/navigatori/");

TEST_F(Navigatore, BecomesStages) {
    const CasoNavigatore casi[] = {
        {"a route: unnamed points lengthen the way",
         "<gpx version='1.1'><rte><rtept lat='45.07' lon='7.69'><name>Torino</name></rtept>"
         "<rtept lat='44.69' lon='8.03'/><rtept lat='44.9' lon='8.2'><name>Asti</name></rtept></rte></gpx>",
         "TORINO, ASTI 95 A"},
        {"ends without a name are called as the nearest place",
         "\xEF\xBB\xBF<?xml version='1.0'?>\n<gpx xmlns='http://www.topografix.com/GPX/1/0'>"
         "<rte><rtept lat='45.07' lon='7.69'/><rtept lat='44.9' lon='8.2'/></rte></gpx>",
         "TORINO, ASTI 60 P"},
        {"a track there and back, with its places as they were noted",
         "<gpx><wpt lat='44.90' lon='8.20'><name>Asti</name></wpt><wpt lat='45.07' lon='7.69'><name>Casa</name></wpt>"
         "<trk><trkseg><trkpt lat='45.07' lon='7.69'/><trkpt lat='45.0' lon='7.9'/><trkpt lat='44.90' lon='8.20'/>"
         "<trkpt lat='45.0' lon='7.9'/><trkpt lat='45.07' lon='7.69'/></trkseg></trk></gpx>",
         "TORINO, ASTI 44 P, CASA 44 P"},
        {"placemarks along a line; of two at one place the first",
         "<kml><Document><Placemark><name>Livorno</name><Point><coordinates>10.31,43.55,0</coordinates></Point>"
         "</Placemark><Placemark><name>Pisa</name><Point><coordinates>10.40,43.72</coordinates></Point></Placemark>"
         "<Placemark><name>Torre</name><Point><coordinates>10.40,43.72</coordinates></Point></Placemark>"
         "<Placemark><LineString><coordinates>10.31,43.55 10.35,43.6\n10.40,43.72</coordinates></LineString>"
         "</Placemark></Document></kml>",
         "LIVORNO, PISA 20 P"},
        {"ITN", "769000|4507000|Torino|4|\r\n820000|4490000|Asti|2|\r\n", "TORINO, ASTI 60 P"},
        {"GeoJSON",
         "{\"type\":\"FeatureCollection\",\"features\":[{\"type\":\"Feature\",\"properties\":{\"name\":\"Torino\"},"
         "\"geometry\":{\"type\":\"Point\",\"coordinates\":[7.69,45.07]}},{\"type\":\"Feature\",\"properties\":{"
         "\"name\":\"Asti\"},\"geometry\":{\"type\":\"Point\",\"coordinates\":[8.2,44.9]}}]}",
         "TORINO, ASTI 60 P"},
        {"GeoJSON: the way as lines, the places in a collection, described in Italian",
         "{\"type\":\"FeatureCollection\",\"features\":[{\"type\":\"Feature\",\"properties\":{\"nome\":\"A casa\"},"
         "\"geometry\":{\"type\":\"GeometryCollection\",\"geometries\":[{\"type\":\"Point\",\"coordinates\":[7.9,45]}]}"
         "},"
         "{\"type\":\"Feature\",\"geometry\":{\"type\":\"MultiLineString\",\"coordinates\":[[[7.69,45.07],[7.9,45]],"
         "[[7.9,45],[8.2,44.9]]]}}]}",
         "TORINO, A CASA 25 P, ASTI 26 P"},
        {"a recorded track, its ends without a name; short legs are local, long ones motorways",
         "<kml><Placemark><Track><coord>7.69 45.07 240</coord><coord>7.75 45.03 240</coord><coord>7.9 45.0 0</coord>"
         "<coord>8.93 44.41 10</coord></Track></Placemark><Placemark><name>Vicino</name><Point><coordinates>7.75,45.03"
         "</coordinates></Point></Placemark></kml>",
         "TORINO, VICINO 9 L, GENOVA 117 A"},
        {"UTF-16, a name on several lines, a note and a kind",
         Utf16(u"<gpx><rte><rtept lat='45.07' lon='7.69'><name>città\n di  forlì</name><cmt>b</cmt></rtept>"
               "<rtept lat='44.9' lon='8.2'><name>Asti</name><sym>Flag</sym></rtept></rte></gpx>"_s),
         "CITTÀ DI FORLÌ, ASTI 60 P"},
        {"GeoJSON in UTF-16",
         Utf16(u"\n{\"type\":\"FeatureCollection\",\"features\":[{\"type\":\"Feature\",\"properties\":{\"name\":"
               "\"Forlì\"},\"geometry\":{\"type\":\"Point\",\"coordinates\":[7.69,45.07]}},{\"type\":\"Feature\","
               "\"geometry\":{\"type\":\"LineString\",\"coordinates\":[[7.69,45.07],[8.2,44.9]]}}]}"_s),
         "FORLÌ, ASTI 60 P"},
        {"ITN in the other UTF-16",
         Utf16(u"769000|4507000|Forlì|4|\r\n820000|4490000|Asti|2|\r\n"_s, QStringConverter::Utf16BE),
         "FORLÌ, ASTI 60 P"},
        {"one point is no route: the places count",
         "<gpx><rte><rtept lat='45.07' lon='7.69'/></rte><wpt lat='45.07' lon='7.69'><name>Uno</name></wpt>"
         "<wpt lat='44.9' lon='8.2'><name>Due</name></wpt></gpx>",
         "UNO, DUE 60 P"},
        {"nobody lives where it ends", "769000|4507000|Torino|4|\r\n-3500000|4500000||2|\r\n",
         "TORINO, 45,0000° N 35,0000° O 4040 A"},
        {"another file", "Ora\tKm\tIstruzione\r\n", "nessun percorso"},
        {"a page of the web", "<html><body>gpx</body></html>", "nessun percorso"},
    };
    for (const CasoNavigatore& caso : casi) {
        EXPECT_EQ(Tappe(File(u"percorso"_s, caso.contenuto)).toStdString(), caso.atteso) << caso.nome;
    }
}

TEST_F(Navigatore, HostileFilesAreRefusedInASentence) {
    const CasoNavigatore casi[] = {
        {"entities", "<!DOCTYPE gpx [<!ENTITY a 'aa'>]><gpx><wpt lat='1' lon='1'><name>&a;</name></wpt></gpx>",
         "contiene definizioni"},
        {"late entities", "<gpx><wpt lat='1' lon='1'><name>&a;</name></wpt></gpx>", "è rovinato alla riga 1"},
        {"cut off", "<gpx><rte><rtept lat='45.07' lon='7.69'>", "è rovinato"},
        {"not of this world", "<gpx><rte><rtept lat='95' lon='7.69'/></rte></gpx>", "non sono di nessun luogo"},
        {"no number", "<gpx><rte><rtept lat='nan' lon='7.69'/></rte></gpx>", "non sono di nessun luogo"},
        {"half a pair", "<kml><Placemark><Point><coordinates>10.31</coordinates></Point></Placemark></kml>",
         "coordinate sono incomplete"},
        {"a line that is none", "769000|4507000|Torino|4|\r\nciao\r\n", "non è di una tappa"},
        {"damaged", "{\"type\":\"FeatureCollection\",\"features\":[", "è rovinato"},
        {"without points", "<kml><Document/></kml>", "non c'è nessuna tappa"},
        {"of Greenland's other side", "769000|4507000|Torino|4|\r\n18000001|4490000|Asti|2|\r\n",
         "non sono di nessun luogo"},
        {"numbers in a text", "{\"type\":\"Point\",\"coordinates\":[\"7.69\",45.07]}",
         "coordinate «45.0700000, ?» non sono di nessun luogo"},
        {"more stages than there are numbers", QByteArray("769000|4507000|X|0|\r\n").repeated(10'000),
         "più di 9.999 tappe"},
        {"no packet", "PK\x03\x04 che non continua", "il pacchetto è rovinato"},
    };
    for (const CasoNavigatore& caso : casi) {
        const QString path = File(u"percorso"_s, caso.contenuto);
        const QString messaggio = prova::MessaggioDi([&] { LeggiPercorsoNavigatore(path, gazzettino_); });
        EXPECT_TRUE(messaggio.contains(QString::fromUtf8(caso.atteso))) << caso.nome << ": " << messaggio.toStdString();
    }
    const QString nido = File(u"nido"_s, "<kml>" + QByteArray("<a>").repeated(1'000'000));
    EXPECT_TRUE(prova::MessaggioDi([&] { LeggiPercorsoNavigatore(nido, gazzettino_); }).contains(u"annidato"_s));
}

// Files as programs write them, and as they should not be. After a change the table is written anew with
// CRONOVIA_RIGENERA=1; review it before keeping it.
TEST_F(Navigatore, FilesAreAsReviewed) {
    const QString& cartella = kDati;
    const QString attesi = QString::fromUtf8(prova::LeggiFile(cartella + u"attesi.txt"_s));
    QString ottenuti;
    for (const QString& riga : attesi.split(u'\n', Qt::SkipEmptyParts)) {
        const QString nome = riga.section(u": "_s, 0, 0);
        if (riga.startsWith(u'#')) {
            ottenuti += riga + u'\n';
            continue;
        }
        QString esito;
        try {
            esito = Tappe(cartella + nome);
        } catch (const Failure& rifiuto) {
            esito = u"! "_s + QString(rifiuto.Message()).remove(cartella);
        }
        ottenuti += nome + u": "_s + esito + u'\n';
    }
    if (qEnvironmentVariableIsSet("CRONOVIA_RIGENERA")) {
        prova::ScriviFile(cartella + u"attesi.txt"_s, ottenuti.toUtf8());
        ADD_FAILURE() << "written anew";
    }
    EXPECT_EQ(ottenuti.toStdString(), attesi.toStdString());
    const QStringList provati = attesi.split(QRegularExpression(u"[:\n]"_s));
    for (const QString& nome : QDir(cartella).entryList(QDir::Files)) {
        EXPECT_TRUE(provati.contains(nome) || nome.endsWith(u".xsd"_s) || nome == u"attesi.txt"_s)
            << nome.toStdString();
    }
}

// There and back, with entries of the guide at the places and names that are no words.
TEST_F(Navigatore, OursComeBack) {
    const PercorsoDaScrivere percorso{u"PROVA & CO"_s,
                                      {{u"TORINO"_s, {}, {45.07, 7.69}},
                                       {u"L'ÎLE <1>"_s, {}, {44.9, 8.2}},
                                       {u"ASTI \"2\""_s, {}, {44.7, 8.3}},
                                       {u"TORINO"_s, {}, {45.07, 7.69}}},
                                      {{u"Duomo"_s, u"Da vedere"_s, {44.7, 8.3}}, {u"Mole"_s, {}, {45.07, 7.69}}}};
    for (const FormatoPercorso formato : {FormatoPercorso::Gpx, FormatoPercorso::Kml, FormatoPercorso::Itn}) {
        EXPECT_EQ(ScriviPercorso(percorso, formato), prova::LeggiFile(kDati + u"nostro."_s + Estensione(formato)));
        const QString nostro = File(u"nostro"_s, ScriviPercorso(percorso, formato));
        const QString tappe = Tappe(nostro);
        const std::optional<FileNavigatore> letto = LeggiNavigatore(nostro);
        ASSERT_TRUE(letto);
        const auto& punti = formato == FormatoPercorso::Kml ? letto->luoghi
                            : letto->rotta.empty()          ? letto->luoghi
                                                            : letto->rotta;
        for (std::size_t i = 0; i < percorso.tappe.size(); ++i) {
            EXPECT_LT(DistanzaKm(punti.at(i).posizione, percorso.tappe[i].posizione), 0.01) << i;
        }
        EXPECT_EQ(QString(tappe).remove(QRegularExpression(u" \\d+ [ASPL]\\b"_s)),
                  u"TORINO, L'ÎLE <1>, ASTI \"2\", TORINO"_s)
            << Estensione(formato).toStdString();
    }
}

class Esempi : public prova::ConArchivio {};

// The three examples, whose places all lie somewhere for certain but those that are left out.
TEST_F(Esempi, ComeBackFromEachFormat) {
    Gazzettino gazzettino{QStringLiteral(CRONOVIA_PLACES "/luoghi.dat")};
    for (const QString& nome : {u"provenza"_s, u"sicilia"_s, u"capo-nord"_s}) {
        ImportaMete({archive_, QStringLiteral(CRONOVIA_EXAMPLES "/") + nome + u".iei"_s, {}}, progress_);
    }
    const std::vector<MetaInElenco> mete = ElencoMete(archive_, QualiMete::ConTappe);
    ASSERT_GE(mete.size(), 3U);
    for (const MetaInElenco& meta : mete) {
        const std::vector<Tappa> tappe = TappeMemorizzate(archive_, meta.codice);
        const auto posizioni = PosizioniDelViaggio(PosizioniConfermate(archive_), gazzettino, tappe, meta.nazione);
        LettoreGuida guida(archive_);
        QStringList partite;
        for (std::size_t i = 0; i < tappe.size(); ++i) {
            if (posizioni[i].Certa()) partite += tappe[i].localita;
        }
        for (const FormatoPercorso formato : {FormatoPercorso::Gpx, FormatoPercorso::Kml, FormatoPercorso::Itn}) {
            const QString file = cartella_.Path() + u"/via"_s;
            EsportaPercorso({archive_, guida, file, formato, true, meta.localita, tappe, posizioni});
            const auto percorso = LeggiPercorsoNavigatore(file, gazzettino);
            QStringList arrivate;
            for (const Tappa& tappa : percorso->tappe) arrivate += tappa.localita;
            EXPECT_EQ(arrivate, partite) << meta.localita.toStdString() << ' ' << Estensione(formato).toStdString();
        }
    }
}

}  // namespace
}  // namespace cronovia
