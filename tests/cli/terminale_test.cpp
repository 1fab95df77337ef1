// SPDX-License-Identifier: GPL-3.0-or-later
// The program as a person has it: on a terminal, which `script` stands in for, and in a shell that completes words.
#include <QDir>

#include "programma.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class SulTerminale : public testing::Test {
  protected:
    // What a line of bash writes; "$P" is the program on the data folder.
    QString Bash(const QString& riga) {
        QProcess bash;
        QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
        ambiente.insert(
            u"P"_s, u"\"%1\" --cartella \"%2\""_s.arg(QStringLiteral(CRONOVIA_PROGRAM), programma_.Cartella().Path()));
        ambiente.insert(u"TERM"_s, u"xterm"_s);
        bash.setProcessEnvironment(ambiente);
        bash.start(u"bash"_s, {u"-c"_s, riga});
        EXPECT_TRUE(bash.waitForFinished(60'000)) << riga.toStdString();
        return QString::fromUtf8(bash.readAllStandardOutput()).remove(u'\r');
    }

    prova::Programma programma_;
};

TEST_F(SulTerminale, AsksAndColoursOnlyThere) {
    const QString rosso = u"\x1b[31mLa mèta ROMA è rimasta.\x1b[0m"_s;
    const QString intestazione = u"\x1b[1mCodice  Mèta"_s;
    ASSERT_EQ(programma_.Uscita({u"nuova"_s, u"ROMA"_s, u"ITALIA"_s}), u"000001\n"_s);
    EXPECT_THAT(Bash(u"echo n | script -qec \"$P elimina 1\" /dev/null"_s).toStdString(),
                testing::HasSubstr(rosso.toStdString()));
    for (const auto& [riga, colori] : std::vector<std::pair<QString, bool>>{
             {u"script -qec \"$P elenca\" /dev/null < /dev/null"_s, true},
             {u"NO_COLOR=1 script -qec \"$P elenca\" /dev/null < /dev/null"_s, false},
             {u"TERM=dumb script -qec \"$P elenca\" /dev/null < /dev/null"_s, false},
             {u"script -qec \"$P elenca 2>&1 | cat\" /dev/null < /dev/null"_s, false}}) {
        const QString uscita = Bash(riga);
        EXPECT_EQ(uscita.contains(intestazione), colori) << riga.toStdString() << '\n' << uscita.toStdString();
        EXPECT_TRUE(uscita.contains(u"000001"_s)) << riga.toStdString();
    }
    EXPECT_FALSE(Bash(u"echo sì | script -qec \"$P elimina 1\" /dev/null"_s).contains(u"rimasta"_s));
    EXPECT_EQ(programma_.Uscita({u"elenca"_s}), u"Nessuna mèta nel database!\n"_s);
}

TEST_F(SulTerminale, BashCompletesVerbsOptionsAndFiles) {
    QDir().mkpath(programma_.Cartella().Path());
    prova::ScriviFile(programma_.Cartella().Path() + u"/un viaggio.iei"_s, {});
    const QString prova =
        u"eval \"source <($P completamento bash)\"; cd \"%1\"; COMP_WORDS=(%2); "
        "COMP_CWORD=$((${#COMP_WORDS[@]}-1)); _cronovia; (IFS='|'; echo \"${COMPREPLY[*]}\")"_s;
    for (const auto& [parole, attese] :
         std::vector<std::pair<QString, QString>>{{u"cronovia con"_s, u"converte|confronta"_s},
                                                  {u"cronovia --cartella /tmp el"_s, u"elenca|elimina"_s},
                                                  {u"cronovia tappe 1 --a"_s, u"--aggiungi"_s},
                                                  {u"cronovia elenca --formato ''"_s, u"testo|tsv|json"_s},
                                                  {u"cronovia importa un"_s, u"un viaggio.iei"_s},
                                                  {u"cronovia stampa 1 --pdf un"_s, u"un viaggio.iei"_s},
                                                  {u"cronovia stampa 1 --giorni ''"_s, QString()},
                                                  {u"cronovia completamento f"_s, u"fish"_s}}) {
        const QString risposta = Bash(prova.arg(programma_.Cartella().Path(), parole));
        EXPECT_EQ(risposta.trimmed().toStdString(), attese.toStdString()) << parole.toStdString();
    }
}

}  // namespace
}  // namespace cronovia
