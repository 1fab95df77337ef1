// SPDX-License-Identifier: GPL-3.0-or-later
// What the program answers and refuses, as reviewed transcripts in tests/data/cli: one file, one data folder. After a
// change they are written anew by
//     CRONOVIA_RIGENERA=1 build/dev/tests/cli/cli_test --gtest_filter='*Verbali*'
// which fails on purpose, so that it cannot pass unnoticed; review the differences before keeping them.
//
//   $ WORD...                  the program with these words (in quotes, with \n, \t, \" and \xNN, when they need it); a
//   word
//                              NAME=VALUE before them is put into its environment, and "> FILE" behind them keeps the
//                              answer in a file of tests/data instead of below
//   | LINE                     a line that it writes; {cartella} stands for the data folder, {esempi} for the examples
//   ! LINE                     a line on standard error
//   = CODE                     its exit code, when that is not 0
//   @ scrivi FILE TEXT         a file, made beforehand; @ mostra FILE: what a file holds now, from Windows-1252
//   @ cartella FOLDER          a folder, made beforehand
//   @ guasta FILE PLACE        one byte of a file becomes 0
//   @ uguali FILE FILE         two files that must be the same
//   @ gpx FILE                 a file that must be GPX 1.1
//
// Whoever is refused leaves all files as they were, and a verb that only reads the archive.
#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>

#include "programma.h"
#include "support/parole.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Programma;
using prova::Risposta;

const QString kDati = QStringLiteral(CRONOVIA_TEST_DATA "/");

class VerbaliTest : public testing::TestWithParam<QString> {
  protected:
    // The transcript as it would be written now.
    QString Esegui(const QString& verbale) {
        QString nuovo;
        for (const QString& riga : verbale.split(u'\n')) {
            if (riga.startsWith(u'|') || riga.startsWith(u'!') || riga.startsWith(u'=')) continue;
            nuovo += riga + u'\n';
            QString espansa = riga;
            espansa.replace(u"{cartella}"_s, cartella_.Path()).replace(u"{esempi}"_s, kEsempi);
            if (riga.startsWith(u"$"_s)) nuovo += Risposte(prova::Parole(espansa.mid(1)));
            if (riga.startsWith(u"@ "_s)) nuovo += Preparazione(prova::Parole(espansa.mid(2)));
        }
        nuovo.chop(1);  // the last line's end is there already
        return nuovo;
    }

  private:
    QString Risposte(QStringList parole) {
        QStringList ambiente;
        while (!parole.isEmpty() && parole.first().contains(u'=') && !parole.first().startsWith(u'-')) {
            ambiente += parole.takeFirst();
        }
        QString file;
        if (parole.size() > 2 && parole.at(parole.size() - 2) == u">"_s) {
            file = kDati + parole.takeLast();
            parole.removeLast();
        }
        const auto prima = Contenuto();
        const Risposta risposta = Programma::EseguiNudo(QStringList{u"--cartella"_s, cartella_.Path()} + parole,
                                                        ambiente.value(0, u"C"_s).section(u'=', -1));
        const auto dopo = Contenuto();
        EXPECT_NE(risposta.codice, -1) << parole.join(u' ').toStdString();
        const bool nuova = !prima.contains(cartella_.Archivio());  // whose first verb makes the archive
        EXPECT_TRUE(risposta.codice == 0 || prima == dopo || (nuova && risposta.codice == 1))
            << "refused: " << parole.join(u' ').toStdString();
        static const QStringList leggono = {u"calcola"_s, u"elenca"_s, u"esporta"_s, u"itinerario"_s, u"stampa"_s};
        if (leggono.contains(parole.value(0)) && prima.contains(cartella_.Archivio())) {
            EXPECT_TRUE(prima[cartella_.Archivio()] == dopo[cartella_.Archivio()]) << parole.join(u' ').toStdString();
        }
        if (!file.isEmpty()) ConfrontaFile(file, risposta.uscita);
        return (file.isEmpty() ? Righe(u'|', risposta.uscita) : QString()) + Righe(u'!', risposta.errori) +
               (risposta.codice == 0 ? QString() : u"= %1\n"_s.arg(risposta.codice));
    }

    static void ConfrontaFile(const QString& file, const QString& uscita) {
        if (qEnvironmentVariableIsSet("CRONOVIA_RIGENERA")) prova::ScriviFile(file, uscita.toUtf8());
        EXPECT_EQ(prova::LeggiFile(file).toStdString(), uscita.toStdString()) << file.toStdString();
    }

    QString Preparazione(const QStringList& parole) {
        if (parole[0] == u"cartella"_s) QDir().mkpath(parole[1]);
        if (parole[0] == u"scrivi"_s) prova::ScriviFile(parole[1], parole[2].toLatin1());
        if (parole[0] == u"guasta"_s) prova::Guasta(parole[1], parole[2].toInt());
        if (parole[0] == u"uguali"_s) {
            EXPECT_EQ(prova::LeggiFile(parole[1]), prova::LeggiFile(parole[2]));
        }
        if (parole[0] == u"gpx"_s) {
            const QStringList argomenti = {u"--noout"_s, u"--schema"_s, kDati + u"navigatori/gpx11.xsd"_s, parole[1]};
            EXPECT_EQ(QProcess::execute(u"xmllint"_s, argomenti), 0);
        }
        return parole[0] == u"mostra"_s ? Righe(u'|', QString::fromLatin1(prova::LeggiFile(parole[1]))) : QString();
    }

    // Every line with a mark before it; what differs from run to run is named.
    QString Righe(QChar segno, QString testo) const {
        if (testo.isEmpty()) return {};
        static const QRegularExpression quando(u"Vecchi file \\d{4}-\\d\\d-\\d\\d \\d\\d\\.\\d\\d\\.\\d\\d"_s);
        testo.replace(cartella_.Path(), u"{cartella}"_s).replace(kEsempi, u"{esempi}"_s);
        static const QRegularExpression copia(
            u"(VandroCronovia(?: danneggiato)? )\\d{4}-\\d\\d-\\d\\d \\d\\d\\.\\d\\d\\.\\d\\d(?: \\d(?= |\\.))?|"
            "((?:in ordine, del|ripristinare, è del) )\\d\\d/\\d\\d/\\d{4} ore \\d\\d:\\d\\d|"
            "(^| )\\d\\d/\\d\\d/\\d{4} \\d\\d:\\d\\d(?=  +\\d+ +\\d+ +\\d+  )"_s);
        testo.replace(copia, u"\\1\\2\\3{quando}"_s);
        testo.replace(quando, u"Vecchi file {quando}"_s).replace(u"\r"_s, u"\\r"_s);
        EXPECT_TRUE(testo.endsWith(u'\n')) << testo.toStdString();
        testo.chop(1);
        QString righe;
        for (const QString& riga : testo.split(u'\n')) righe += segno + (riga.isEmpty() ? riga : u' ' + riga) + u'\n';
        return righe;
    }

    [[nodiscard]] QMap<QString, QByteArray> Contenuto() const {
        QMap<QString, QByteArray> contenuto;
        for (QDirIterator i(cartella_.Path(), QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
             i.hasNext();) {
            const QFileInfo file(i.next());
            if (file.filePath().startsWith(cartella_.Path() + u"/Copie"_s)) continue;  // kept before a refusal too
            contenuto[file.filePath()] = file.isFile() ? prova::LeggiFile(file.filePath()) : QByteArray();
        }
        return contenuto;
    }

    const QString kEsempi = QStringLiteral(CRONOVIA_EXAMPLES);
    prova::CartellaDiProva cartella_;
};

TEST_P(VerbaliTest, AreAsReviewed) {
    const QString file = kDati + u"cli/"_s + GetParam();
    const QByteArray verbale = prova::LeggiFile(file);
    const QByteArray nuovo = Esegui(QString::fromUtf8(verbale)).toUtf8();
    if (qEnvironmentVariableIsSet("CRONOVIA_RIGENERA")) {
        prova::ScriviFile(file, nuovo);
        FAIL() << "written anew: " << file.toStdString();
    }
    EXPECT_EQ(verbale.toStdString(), nuovo.toStdString());
}

std::vector<QString> File() {
    const QStringList nomi = QDir(kDati + u"cli"_s).entryList({u"*.txt"_s}, QDir::Files, QDir::Name);
    return {nomi.begin(), nomi.end()};
}

INSTANTIATE_TEST_SUITE_P(Cli, VerbaliTest, testing::ValuesIn(File()), [](const auto& caso) {
    return QString(caso.param).remove(u".txt"_s).replace(u'-', u'_').toStdString();
});

}  // namespace
}  // namespace cronovia
