// PDF files, read back with poppler's tools.
#include "print/file_pdf.h"

#include <gmock/gmock.h>

#include <QProcess>
#include <QRegularExpression>

#include "stampa.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

QString Poppler(const QString& programma, const QStringList& argomenti) {
    QProcess processo;
    processo.start(programma, argomenti);
    EXPECT_TRUE(processo.waitForFinished()) << programma.toStdString() << ": is poppler-utils installed?";
    EXPECT_EQ(processo.exitCode(), 0);
    return QString::fromUtf8(processo.readAllStandardOutput());
}

struct Parola {
    int pagina = 0;
    double x = 0;  // millimetres of the model
    double fine = 0;
    double base = 0;  // bottom of the word's box
    QString testo;
};

std::vector<Parola> Parole(const QString& path) {
    static const QRegularExpression parola(
        u"<word xMin=\"([\\d.]+)\" yMin=\"[\\d.]+\" xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\">([^<]*)</word>"_s);
    std::vector<Parola> parole;
    int pagina = 0;
    const auto modello = [](const QString& punti) { return punti.toDouble() * 25.4 / 72 - kMargineFoglio; };
    for (const QString& riga : Poppler(u"pdftotext"_s, {u"-bbox"_s, path, u"-"_s}).split(u'\n')) {
        if (riga.contains("<page "_L1)) ++pagina;
        const auto trovata = parola.match(riga);
        if (!trovata.hasMatch()) continue;
        QString testo = trovata.captured(4);
        testo.replace("&gt;"_L1, ">"_L1).replace("&lt;"_L1, "<"_L1).replace("&amp;"_L1, "&"_L1);
        testo.replace("&apos;"_L1, "'"_L1).replace("&quot;"_L1, "\""_L1);
        parole.push_back(
            {pagina, modello(trovata.captured(1)), modello(trovata.captured(2)), modello(trovata.captured(3)), testo});
    }
    return parole;
}

class FilePdf : public testing::Test {
  protected:
    FilePdf() { cartella_.Crea(); }

    void Scrivi(const Documento& documento) {
        FileIntero file(path_);
        Progress progress;
        ScriviPdf(documento, file, progress);
        file.Chiudi();
    }

    prova::CartellaDiProva cartella_;
    QString path_ = cartella_.Percorso() + u"/viaggio.pdf"_s;
};

TEST_F(FilePdf, TellsItsTitleAndBringsItsFonts) {
    const Documento documento = prova::Stampa(prova::CapoNord());
    Scrivi(documento);
    const QString info = Poppler(u"pdfinfo"_s, {path_});
    EXPECT_TRUE(info.contains(QRegularExpression(u"Title: +Cronovia: CAPO NORD\n"_s)));
    EXPECT_TRUE(info.contains(QRegularExpression(u"Pages: +%1\n"_s.arg(documento.pagine.size()))));
    EXPECT_TRUE(info.contains("(A4)"_L1));
    EXPECT_FALSE(info.contains("Author"_L1));
    const QStringList font = Poppler(u"pdffonts"_s, {path_}).trimmed().split(u'\n').sliced(2);
    EXPECT_GE(font.size(), 6);
    for (const QString& riga : font) {
        EXPECT_TRUE(riga.contains(QRegularExpression(u"TrueType .* yes (yes|no ) yes"_s))) << riga.toStdString();
    }
}

// Each text of the model is in the file, in the model's order, at the model's place and as wide.
TEST_F(FilePdf, HoldsEveryTextInItsPlace) {
    const Documento documento = prova::Stampa(prova::CapoNord());
    Scrivi(documento);
    const std::vector<Parola> parole = Parole(path_);
    QStringList scritte;
    for (const Parola& parola : parole) scritte += parola.testo;
    scritte.sort();
    QStringList attese;
    int pagina = 0;
    for (const Pagina& foglio : documento.pagine) {
        ++pagina;
        for (const TestoPosto& posto : foglio.testi) {
            const QStringList suoi = posto.testo.split(u' ', Qt::SkipEmptyParts);
            attese += suoi;
            const auto prima = std::find_if(parole.begin(), parole.end(), [&](const Parola& parola) {
                return parola.pagina == pagina && parola.testo == suoi.first() && qAbs(parola.x - posto.x) < 0.2 &&
                       parola.base > posto.base && parola.base < posto.base + 2;
            });
            const double fine = posto.x + posto.larghezza;
            const bool ultima =
                posto.testo.endsWith(u' ') || std::any_of(parole.begin(), parole.end(), [&](const Parola& parola) {
                    return parola.pagina == pagina && parola.testo == suoi.last() && qAbs(parola.fine - fine) < 0.2;
                });
            EXPECT_TRUE(prima != parole.end() && ultima)
                << "page " << pagina << " x " << posto.x << ": " << posto.testo.toStdString();
        }
    }
    attese.sort();
    EXPECT_EQ(scritte, attese);
}

TEST_F(FilePdf, WithoutPagesIsABlankSheet) {
    Scrivi(prova::Stampa(prova::Viaggio(0)));
    EXPECT_TRUE(Poppler(u"pdfinfo"_s, {path_}).contains(QRegularExpression(u"Pages: +1\n"_s)));
    EXPECT_TRUE(Parole(path_).empty());
}

TEST_F(FilePdf, AFullDiskLeavesTheOldFileInPlace) {
    prova::ScriviFile(path_, "prezioso");
    QString messaggio;
    prova::ConDiscoPieno(10'000,
                         [&] { messaggio = prova::MessaggioDi([&] { Scrivi(prova::Stampa(prova::Viaggio(300))); }); });
    EXPECT_EQ(messaggio, u"Il file %1 non è stato scritto: il disco è pieno o non si può scrivere."_s.arg(path_));
    EXPECT_EQ(prova::LeggiFile(path_), "prezioso");
    EXPECT_EQ(cartella_.Contenuto(), QStringList{u"viaggio.pdf"_s});
}

}  // namespace
}  // namespace cronovia
