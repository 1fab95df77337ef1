// Routes of other programs: each rule of the two layouts, the encodings, whole examples, files that are none.
#include "exchange/percorsi/importa_percorso.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QStringConverter>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::MessaggioDi;

using Percorso = std::optional<RigheItinerario>;

Percorso Leggi(QByteArray file) {
    QBuffer buffer(&file);
    EXPECT_TRUE(buffer.open(QIODevice::ReadOnly));
    Progress progress;
    return LeggiPercorso(buffer, u"prova.txt"_s, progress);
}

// "PLACE road km type stop" of every stage, one in a line.
QString Righe(const Percorso& percorso) {
    if (!percorso) return u"non riconosciuto"_s;
    QStringList righe;
    for (const Tappa& t : *percorso) {
        const QStringList campi{t.localita, t.numStrada, QString::number(t.km), LetteraTipoStrada(t.tipo),
                                Testo(t.sosta)};
        righe += campi.join(u'|');
    }
    return righe.join(u'\n');
}

// Lines whose fields stand between "|", under a header, long enough to be a route.
QByteArray File(const QString& intestazione, const QString& righe) {
    QString testo = QString(160, u' ') + u'\n' + intestazione + u'\n' + righe;
    return testo.replace(u'|', u'\t').toUtf8();
}

struct Caso {
    const char* regola;
    const char16_t* righe;
    const char16_t* tappe;
};

void Controlla(const Caso& caso, const QString& intestazione) {
    const QByteArray file = File(intestazione, QString::fromUtf16(caso.righe));
    EXPECT_EQ(Righe(Leggi(file)), QString::fromUtf16(caso.tappe)) << caso.regola;
}

TEST(ImportaPercorso, RulesOfTheInstructions) {
    for (const Caso& caso : {
             Caso{"departure, even at 0 km", u"8|0|Partenza: Forlì", u"FORLÌ||0|P|"},
             {"departure near a place", u"8|0|partenza di buon'ora vicino a San Leo", u"SAN LEO||0|P|"},
             {"only the first departure", u"8|0|Partenza Asti\n9|5|Partenza Alba\n9|9|a Bra", u"ASTI||0|P|\nBRA||9|P|"},
             {"a place up to the comma", u"9|12,7|a Riva del Garda, gira\n9|20|A Arco",
              u"RIVA DEL GARDA||12|P|\nARCO||8|P|"},
             {"at a place", u"9|12|presso Susa, esci\n9|13|Presso Oulx", u"SUSA||12|P|\nOULX||1|P|"},
             {"near goes first", u"9|12|Vicino a Susa, esci\n9|13|vicino presso Oulx", u"SUSA||12|P|\nOULX||1|P|"},
             {"near in the name", u"9|12|presso vicino a Susa", u"SUSA||12|P|"},
             {"arrival is one word", u"9|8|arrivo Roma Termini", u"ROMA||8|P|"},
             {"arrival near", u"9|8|Arrivo previsto vicino a Roma Termini", u"ROMA||8|P|"},
             {"a country", u"9|8|Ingresso in Austria, vignetta\n9|9|ingresso in Italia",
              u"INGRESSO IN AUSTRIA, VIGNETTA||8|P|\nINGRESSO IN ITALIA||1|P|"},
             {"ferry by its asterisks", u"9|8|Controllo orari *** Genova-Olbia, ore 9 su NAVE (1)",
              u"GENOVA-OLBIA|TRAGH|8|P|00:02:00"},
             {"ferry by its way", u"9|8|*** Imbarco su Genova-Olbia (ponte 4) controllo orari",
              u"GENOVA-OLBIA|TRAGH|8|P|00:02:00"},
             {"ferry without a name", u"9|8|controllo orari in porto\n9|9|a Olbia", u"OLBIA||9|P|"},
             {"the same ferry twice", u"9|8|controllo orari *** X-Y,\n9|8|controllo orari *** X-Y,\n9|9|a Olbia",
              u"X-Y|TRAGH|8|P|00:02:00\nOLBIA|TRAGH|1|P|00:02:00"},
             {"a ferry with the name of the last stage",
              u"9|8|a Genova\n9|8|controllo orari *** Genova,\n9|300|a Olbia",
              u"GENOVA||8|P|\nOLBIA|TRAGH|292|P|00:02:00"},
             {"ferry and the longest road",
              u"|1|Entra su SS1|s|5 km\n|6|via su SS2|s|2 km\n9|8|controllo orari *** X-Y,",
              u"X-Y|TRAGH SS1|8|P|00:02:00"},
             {"the same place twice", u"9|8|a Susa\n9|9|presso SUSA, esci\n9|10|a Oulx", u"SUSA||8|P|\nOULX||2|P|"},
             {"the road of a stage leads to the next", u"9|8|a Susa, gira su A32, poi\n9|20|a Oulx, su",
              u"SUSA||8|P|\nOULX|A32|12|A|"},
             {"one road once", u"|1|via su A4|e|9 km\n|2|via su A4|e|8 km\n|3|via su A4\n9|9|a Novara",
              u"NOVARA|A4|9|A|"},
             {"A1 is not A14", u"|1|via su A14\n|2|via su A1\n9|9|a Imola", u"IMOLA|A14 A1|9|A|"},
             {"the shortest of three goes",
              u"|1|via su SS9|e|7 km\n|2|via su A14|e|3,5 km\n|3|via su SP2|e|40 km\n9|9|a Imola",
              u"IMOLA|SS9 SP2|9|P|"},
             {"the first of equals goes", u"|1|via su SS9|e|3\n|2|via su A14|e|3\n|3|via su SP2|e|1\n9|9|a Imola",
              u"IMOLA|A14 SP2|9|A|"},
             {"thousands, fractions, no distance", u"9|998,9|a Arles\n9|1.000,1|a Nîmes\n9||a Sète\n9|1.012|a Agde",
              u"ARLES||998|P|\nNÎMES||2|P|\nSÈTE||0|P|\nAGDE||12|P|"},
             {"points of fractions", u"9|8.5|a Arles\n9|0.250|a Nîmes", u"ARLES||8|P|\nNÎMES||0|P|"},
             {"distances from zero again", u"9|300|arrivo Arles\n8|0|partenza Arles\n9|30|a Nîmes\n9|12|a Sète",
              u"ARLES||300|P|\nNÎMES||30|P|\nSÈTE||12|P|"},
             {"an absurd distance", u"9|99999999999|a Arles", u"ARLES||32767|P|"},
             {"quotes of spreadsheets, blanks, short lines", u"9\n\n\t\n9|8|\"a  L'Aquila, \"\"est\"\"\"",
              u"L'AQUILA||8|P|"},
             {"header again, columns changed",
              u"|1|via su A1|e|9 km\nora|km|istruzioni|Km\n|2|via su A2|8 km\n|3|via su A3|2 km\n9|4|a Imola",
              u"IMOLA|A1 A2|4|A|"},
         }) {
        Controlla(caso, u"Ora|Km|Istruzioni|Verso|Km tratto"_s);
    }
}

TEST(ImportaPercorso, RulesOfTheLocalities) {
    for (const Caso& caso : {
             Caso{"departure, even at 0 km", u"Forlì|||0 KM", u"FORLÌ||0|P|"},
             {"less than 1 km is no stage", u"Asti|||0 KM\nAlba|||0 KM\nBra|||1,9 KM\nDogliani|||1 KM",
              u"ASTI||0|P|\nBRA||1|P|"},
             {"the same place twice", u"Asti|||0 km\nAlba|||9 km\nALBA|||12 km\nBra|||15 km",
              u"ASTI||0|P|\nALBA||9|P|\nBRA||6|P|"},
             {"road, place, rest", u"(A21) Asti Est (uscita)|||7 KM\n(A6)|||8 KM\nBra|||9 KM",
              u"ASTI EST|A21|7|A|\nBRA|A6|2|A|"},
             {"a road line", u"- Via Emilia|||7 KM\nImola|||9 KM", u"IMOLA|Via Emilia|9|P|"},
             {"a road line with a place", u"-Imola (A14)|||7 KM\n-Faenza (centro)|||9 KM",
              u"IMOLA|A14|7|A|\nFAENZA||2|P|"},
             {"a number in the name", u"Imola A14/E45|||7 KM\nFaenza 9|||9 KM\nLIDO7|||10 KM\nBivio (SS 16)|||11 KM",
              u"IMOLA|A14/E45|7|A|\nFAENZA|9|2|P|\nLIDO|7|1|P|\nBIVIO|SS 16|1|P|"},
             {"a slash in the name", u"Bolzano/Bozen|||7 KM", u"BOLZANO/BOZEN||7|P|"},
             {"a place up to the comma", u"Bra, Cuneo|||7 KM", u"BRA||7|P|"},
             {"the road at the direction's end", u"Bra|verso A6||7 KM\n(A21) Asti|verso A6||9 KM",
              u"BRA|A6|7|A|\nASTI|A21|2|A|"},
             {"24 characters side by side", u"Castelnuovo Rangone (MO)|||7 KM\nCastelnuovo Rangone (MO)|A1||9 KM",
              u"CASTELNUOVO RANGONE (MO)||7|P|\nCASTELNUOVO RANGONE|A1|2|A|"},
             {"republics", u"Brno Repubblica Ceca|||7 KM", u"BRNO REPUBBLIC. CECA||7|P|"},
             {"direction instead of a place", u"|Gira in direzione di Faenza||7 KM", u"DIREZIONE FAENZA||7|P|"},
             {"a border's own stage", u"Como|Attraverso il confine verso Svizzera||7 KM\nLugano|||30 KM",
              u"COMO||7|P|\nINGRESSO IN SVIZZERA||0|P|\nLUGANO||23|P|"},
             {"a border once", u"|confine verso Svizzera||7 KM\n-A2|Confine verso Italia||7 KM",
              u"INGRESSO IN SVIZZERA||7|P|\nINGRESSO IN ITALIA|A2|0|A|"},
             {"a border without a country", u"Como|confine||7 KM", u"COMO||7|P|"},
             {"a ferry", u"Olbia|Traghetto da Genova|2 km|7 KM\nNuoro|||9 KM",
              u"OLBIA|TRAGH|7|P|00:02:00\nNUORO||2|P|"},
             {"a ferry and the longest road", u"-A12||40 km|\n-SS1||5 km|\nOlbia|traghetto||47 KM",
              u"OLBIA|TRAGH A12|47|P|00:02:00"},
             {"a road without a stage waits", u"Asti|||7 KM\n(A21)|||7 KM\n(A6) ASTI|||7 KM\nBra|||9 KM",
              u"ASTI||7|P|\nBRA|A21 A6|2|A|"},
             {"the shortest of three goes", u"-SS9||7 km\n-A14||3\n-SP2||40 KM\nImola|||50 KM", u"IMOLA|SS9 SP2|50|P|"},
             {"distances from zero again", u"Asti|||40 KM\n-A6|||50 KM\n-A6|||0 KM\nBra|||9 KM\nAlba|||3 KM",
              u"ASTI||40|P|\nBRA|A6|19|A|\nALBA||3|P|"},
             {"an empty distance restarts nothing", u"Asti|||40 KM\nCanale|||\nBra|||50 KM",
              u"ASTI||40|P|\nBRA||10|P|"},
             {"near a place", u"vicino a Asti|||40 KM\nVicino a|||60 KM", u"ASTI||40|P|"},
             {"header again, columns changed",
              u"Asti|||4 KM\nLocalità|Direzione|Distanza|Costo|Posizione opposta\n"
              "Bra|||7 KM|9 KM",
              u"ASTI||4|P|\nBRA||5|P|"},
         }) {
        Controlla(caso, u"Località|Direzione|Distanza|Posizione opposta"_s);
    }
}

TEST(ImportaPercorso, HeadersTellTheLayout) {
    struct Prova {
        QString prima;
        QString intestazione;
        QString tappe;
    };
    const QString righe = u"\nImola|8 KM|a Imola"_s;
    const QString istruzioni = u"IMOLA||8|P|"_s;
    const QString localita = u"IMOLA||0|P|"_s;
    const QString nessuno = u"non riconosciuto"_s;
    for (const Prova& prova : {
             Prova{{}, u"Giorno e ORA|KM|istruzioni"_s, istruzioni},
             {QString(15, u'\n'), u"Ora|Km|Istruzioni"_s, istruzioni},
             {QString(16, u'\n'), u"Ora|Km|Istruzioni"_s, nessuno},
             {{}, u"Orario|Km|Istruzioni"_s, nessuno},
             {{}, u"Ora|Km.|Istruzioni"_s, nessuno},
             {{}, u"Ora|Istruzioni|Km"_s, nessuno},
             {{}, u"» Località|Direzione|DISTANZA"_s, localita},
             {{}, u"La Località|Direzione|Distanza"_s, nessuno},
             {{}, u"Località|Distanza|Direzione"_s, nessuno},
         }) {
        const QString testo = prova.prima + prova.intestazione + righe + QString(160, u' ');
        const QString tappe = Righe(Leggi(QString(testo).replace(u'|', u'\t').toUtf8()));
        EXPECT_EQ(tappe, prova.tappe) << prova.intestazione.toStdString();
    }
    const QByteArray corto = "Ora\tKm\tIstruzioni\n9\t8\ta Imola\n";
    EXPECT_EQ(Righe(Leggi(corto + QByteArray(150 - corto.size(), ' '))), nessuno);
    EXPECT_EQ(Righe(Leggi(corto + QByteArray(151 - corto.size(), ' '))), istruzioni);
}

// In Windows-1252, UTF-8 and UTF-16, with borders, ferries and distances from zero again. After a change the reference
// is written anew with CRONOVIA_RIGENERA=1; review it before keeping it.
TEST(ImportaPercorso, ExamplesAreAsReviewed) {
    const QDir cartella(u"" CRONOVIA_EXAMPLES "/percorsi"_s);
    Progress progress;
    QString ottenuto;
    for (const QString& nome : cartella.entryList(QDir::Files, QDir::Name)) {
        const Percorso percorso = LeggiPercorso(cartella.filePath(nome), progress);
        ASSERT_TRUE(percorso.has_value()) << nome.toStdString();
        ottenuto += nome + u'\n' + RiassuntoPercorso(*percorso) + u'\n' + Righe(percorso) + u"\n\n"_s;
    }
    const QString riferimento = u"" CRONOVIA_TEST_DATA "/percorsi.txt"_s;
    if (qEnvironmentVariableIsSet("CRONOVIA_RIGENERA")) {
        prova::ScriviFile(riferimento, ottenuto.toUtf8());
        ADD_FAILURE() << "written anew";
    }
    EXPECT_EQ(prova::LeggiFile(riferimento).toStdString(), ottenuto.toStdString());
}

TEST(ImportaPercorso, EncodingsOfTheSameText) {
    const QString testo = QString::fromUtf8(File(u"Località|Direzione|Distanza|Posizione opposta"_s,
                                                 u"Forlì|||0 KM\r\nMünchen\u00A0Süd|||300 KM\r\nSÃO João|||900 KM"_s));
    const QString tappe = u"FORLÌ||0|P|\nMÜNCHEN SÜD||300|P|\nSÃO JOÃO||600|P|"_s;
    for (const auto codifica : {QStringConverter::Utf8, QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        for (const auto segno : {QStringConverter::Flag::Default, QStringConverter::Flag::WriteBom}) {
            QStringEncoder scrittore(codifica, segno);
            EXPECT_EQ(Righe(Leggi(scrittore.encode(testo))), tappe) << QStringConverter::nameForEncoding(codifica);
        }
    }
    EXPECT_EQ(Righe(Leggi(testo.toLatin1())), tappe);
    EXPECT_EQ(Righe(Leggi(testo.normalized(QString::NormalizationForm_D).toUtf8())), tappe);
}

class FileGuasti : public testing::Test {
  protected:
    QString Messaggio(const QByteArray& file, Progress* progress = nullptr) {
        Progress muto;
        prova::ScriviFile(percorso_, file);
        return MessaggioDi([&] {
            if (!LeggiPercorso(percorso_, progress == nullptr ? muto : *progress)) throw Failure(u"sconosciuto"_s);
        });
    }
    void SetUp() override { cartella_.Crea(); }

    prova::CartellaDiProva cartella_;
    const QString percorso_ = cartella_.Percorso() + u"/percorso.txt"_s;
    const QByteArray testa_ = File(u"Ora|Km|Istruzioni"_s, {});
};

TEST_F(FileGuasti, EachEndsWithOneMessage) {
    const QString vuoto = u"Nel percorso del file %1 non c'è nessuna tappa."_s.arg(percorso_);
    QByteArray binario(300'000, Qt::Uninitialized);
    for (qsizetype i = 0; i < binario.size(); ++i) binario[i] = static_cast<char>(i * i * 31 + i / 7);
    struct Guasto {
        QByteArray file;
        QString messaggio;
    };
    const QString ignoto = u"sconosciuto"_s;
    for (const Guasto& guasto : std::vector<Guasto>{
             {{}, ignoto},
             {binario, ignoto},
             {QByteArray(1'000'000, '\0'), ignoto},
             {QByteArray(10'000'000, 'x'), ignoto},
             {"\xFF\xFE" + QByteArray(10'000'001, 'x'), ignoto},
             {testa_, vuoto},
             {testa_ + QByteArray(10'000'000, 'x') + "\n" + binario, vuoto},
             {testa_ + QByteArray("9\t8\tsvolta su A1\n").repeated(200'000), vuoto},
             {testa_ + QByteArray("9\t8\ta Susa\n9\t9\ta Oulx\n").repeated(5'000),
              u"Il percorso del file %1 ha più di 9.999 tappe: un itinerario non può contenerle."_s.arg(percorso_)},
         }) {
        EXPECT_EQ(Messaggio(guasto.file), guasto.messaggio) << guasto.file.left(40).toStdString();
    }
    const QByteArray riga = "9\t8\ta Su" + QByteArray(1, '\0') + "sa\n";
    EXPECT_EQ(Righe(Leggi(testa_ + QByteArray(10'000'000, 'x') + '\n' + riga + "9\t9\ta Ou")),
              u"SU SA||8|P|\nOU||1|P|"_s);
}

// Does something to the file while it is read.
struct Disturbo : Progress {
    explicit Disturbo(std::function<void()> fatto) : azione(std::move(fatto)) {}
    void Advance(double /*count*/, double /*total*/) override {
        if (azione) std::exchange(azione, nullptr)();
    }
    std::function<void()> azione;
};

TEST_F(FileGuasti, AFileThatChangesOrGoesWhileItIsRead) {
    const QByteArray file = testa_ + QByteArray("9\t8\ta Susa\n").repeated(100'000);
    const QString cambiato = u"Il file %1 è cambiato mentre veniva letto."_s.arg(percorso_);
    Disturbo accorcia([&] { QFile::resize(percorso_, 200); });
    EXPECT_EQ(Messaggio(file, &accorcia), cambiato);
    Disturbo toglie([&] { QFile::remove(percorso_); });
    EXPECT_EQ(Messaggio(file, &toglie), cambiato);
    Progress progress;
    EXPECT_EQ(MessaggioDi([&] { LeggiPercorso(percorso_, progress); }), u"Il file %1 non esiste."_s.arg(percorso_));
}

}  // namespace
}  // namespace cronovia
