// SPDX-License-Identifier: GPL-3.0-or-later
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

// Rules in tests/data/percorsi: "! " the header, "# " a rule, "< " each line under the header, "= " each stage.
TEST(ImportaPercorso, RulesOfTheTwoLayouts) {
    int regole = 0;
    for (const QString& nome : {u"istruzioni"_s, u"localita"_s}) {
        const QByteArray testo = prova::LeggiFile(u"" CRONOVIA_TEST_DATA "/percorsi/%1.txt"_s.arg(nome));
        QString intestazione;
        QString regola;
        QMap<QChar, QStringList> righe;
        const auto controlla = [&] {
            if (regola.isEmpty()) return;
            EXPECT_EQ(Righe(Leggi(File(intestazione, righe[u'<'].join(u'\n')))), righe[u'='].join(u'\n'))
                << regola.toStdString();
            righe.clear();
            ++regole;
        };
        for (const QString& riga : QString::fromUtf8(testo).split(u'\n', Qt::SkipEmptyParts)) {
            if (riga.startsWith(u'!')) intestazione = riga.mid(2);
            if (riga.startsWith(u'#')) {
                controlla();
                regola = riga.mid(2);
            }
            righe[riga.front()] += riga.mid(2);
        }
        controlla();
    }
    EXPECT_EQ(regole, 52);
}

TEST(ImportaPercorso, HeadersTellTheLayout) {
    const QString istruzioni = u"IMOLA||8|P|"_s;
    const QString nessuno = u"non riconosciuto"_s;
    const QString ora = u"Ora|Km|Istruzioni"_s;
    for (const auto& [tappe, intestazioni] : std::vector<std::pair<QString, QStringList>>{
             {istruzioni, {u"Giorno e ORA|KM|istruzioni"_s, QString(15, u'\n') + ora}},
             {u"IMOLA||0|P|"_s, {u"» Località|Direzione|DISTANZA"_s}},
             {nessuno,
              {QString(16, u'\n') + ora, u"Orario|Km|Istruzioni"_s, u"Ora|Km.|Istruzioni"_s, u"Ora|Istruzioni|Km"_s,
               u"La Località|Direzione|Distanza"_s, u"Località|Distanza|Direzione"_s}}}) {
        for (const QString& intestazione : intestazioni) {
            QString testo = intestazione + u"\nImola|8 KM|a Imola"_s + QString(160, u' ');
            EXPECT_EQ(Righe(Leggi(testo.replace(u'|', u'\t').toUtf8())), tappe) << intestazione.toStdString();
        }
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
            // As two files in one have it, or a name that was copied from a page.
            const QString incollato = QString(testo).replace(u"São"_s, u"São\uFEFF"_s, Qt::CaseInsensitive);
            EXPECT_EQ(Righe(Leggi(scrittore.encode(incollato))), tappe) << QStringConverter::nameForEncoding(codifica);
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
    const QString percorso_ = cartella_.Path() + u"/percorso.txt"_s;
    const QByteArray testa_ = File(u"Ora|Km|Istruzioni"_s, {});
};

TEST_F(FileGuasti, EachEndsWithOneMessage) {
    const QString vuoto = u"Nel percorso del file %1 non c'è nessuna tappa."_s.arg(percorso_);
    QByteArray binario(300'000, Qt::Uninitialized);
    for (qsizetype i = 0; i < binario.size(); ++i) binario[i] = static_cast<char>(i * i * 31 + i / 7);
    const QString ignoto = u"sconosciuto"_s;
    for (const auto& [file, messaggio] : std::vector<std::pair<QByteArray, QString>>{
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
        EXPECT_EQ(Messaggio(file), messaggio) << file.left(40).toStdString();
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
