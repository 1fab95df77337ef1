// SPDX-License-Identifier: GPL-3.0-or-later
// PDF files, read back with poppler's tools.
#include "print/file_pdf.h"

#include <gmock/gmock.h>

#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>

#include "print/pittore.h"
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

/// In the order in which they were painted.
std::vector<Parola> Parole(const QString& path) {
    static const QRegularExpression parola(
        u"<word xMin=\"([\\d.]+)\" yMin=\"[\\d.]+\" xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\">([^<]*)</word>"_s);
    std::vector<Parola> parole;
    int pagina = 0;
    const auto modello = [](const QString& punti) { return punti.toDouble() * 25.4 / 72 - kMargineFoglio; };
    for (const QString& riga : Poppler(u"pdftotext"_s, {u"-raw"_s, u"-bbox"_s, path, u"-"_s}).split(u'\n')) {
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
    struct Titoli : Progress {
        void Title(const QString& title) override { visti += title; }
        QStringList visti;
    };

    FilePdf() { cartella_.Crea(); }

    void Scrivi(const Stampato& documento) {
        FileIntero file(path_);
        ScriviPdf(documento, file, titoli_);
        file.Chiudi();
    }

    prova::CartellaDiProva cartella_;
    QString path_ = cartella_.Path() + u"/viaggio.pdf"_s;
    Titoli titoli_;
};

// Each text of the model is in the file, in the model's order, at the model's place and as wide.
TEST_F(FilePdf, HoldsEveryTextInOrderAndInItsPlace) {
    const Stampato documento = prova::Stampa(prova::CapoNord());
    Scrivi(documento);
    const std::vector<Parola> parole = Parole(path_);
    std::size_t i = 0;
    for (int pagina = 1; const Pagina& foglio : documento.pagine) {
        for (const TestoCollocato& testo : foglio.testi) {
            SCOPED_TRACE(u"page %1: %2"_s.arg(QString::number(pagina), testo.testo).toStdString());
            const std::size_t prima = i;
            for (const QString& parola : testo.testo.split(u' ', Qt::SkipEmptyParts)) {
                ASSERT_LT(i, parole.size());
                ASSERT_EQ(parole[i].testo, parola);
                ASSERT_EQ(parole[i++].pagina, pagina);
            }
            EXPECT_NEAR(parole[prima].x, testo.x, 0.2);
            EXPECT_NEAR(parole[prima].base, testo.base + 1, 1);
            // A blank at the end, where a text was cut, belongs to no word.
            const double larghezza = testo.testo.endsWith(u' ') ? parole[i - 1].fine - testo.x : testo.larghezza;
            EXPECT_NEAR(parole[i - 1].fine, testo.x + larghezza, 0.2);
        }
        ++pagina;
    }
    EXPECT_EQ(i, parole.size());
    EXPECT_EQ(titoli_.visti.last(), u"Stampa della cronovia (pag. %1)"_s.arg(documento.pagine.size()));

    // A bookmark for each day, which leads to its page.
    const QString indice = Poppler(u"pdftohtml"_s, {u"-xml"_s, u"-stdout"_s, u"-i"_s, path_});
    for (const Segnalibro& segnalibro : documento.segnalibri) {
        const QString voce = u"<item page=\"%1\">%2</item>"_s.arg(QString::number(segnalibro.pagina + 1),
                                                                  segnalibro.titolo.toHtmlEscaped());
        EXPECT_TRUE(indice.contains(voce)) << voce.toStdString();
    }
    const QString info = Poppler(u"pdfinfo"_s, {path_});
    EXPECT_TRUE(info.contains(QRegularExpression(u"Title: +Cronovia: CAPO NORD\n"_s)));
    EXPECT_TRUE(info.contains("(A4)"_L1));
    EXPECT_FALSE(info.contains("Author"_L1));
    const QStringList font = Poppler(u"pdffonts"_s, {path_}).trimmed().split(u'\n').sliced(2);
    EXPECT_EQ(font.size(), 4);  // one family
    for (const QString& riga : font) {
        EXPECT_TRUE(riga.contains(QRegularExpression(u"TrueType .* yes (yes|no ) yes"_s))) << riga.toStdString();
    }
    Scrivi(prova::Stampa(prova::Viaggio(0)));
    EXPECT_TRUE(Poppler(u"pdfinfo"_s, {path_}).contains(QRegularExpression(u"Pages: +1\n"_s)));
    EXPECT_TRUE(Parole(path_).empty());
}

// A printer that keeps the sheet it has, and paints within its margins.
TEST_F(FilePdf, OnASheetWithMarginsTextsAreWhereTheyBelong) {
    struct Ostinata : QPdfWriter {
        Ostinata(const QString& path, QPageSize::PageSizeId foglio) : QPdfWriter(path) {
            QPdfWriter::setPageLayout({QPageSize(foglio), QPageLayout::Portrait, {30, 20, 10, 10}});
        }
        bool setPageLayout(const QPageLayout&) override { return false; }
    };
    const Stampato documento = prova::Stampa(prova::Viaggio(1));
    Ostinata a4(path_, QPageSize::A4);
    Dipingi(documento, a4, titoli_);
    const TestoCollocato& primo = documento.pagine[0].testi[0];
    const std::vector<Parola> parole = Parole(path_);
    ASSERT_FALSE(parole.empty());
    EXPECT_NEAR(parole[0].x, primo.x, 0.4);
    EXPECT_NEAR(parole[0].base, primo.base + 1, 1);
    Ostinata corta(path_, QPageSize::Letter);
    EXPECT_EQ(prova::MessaggioDi([&] { Dipingi(documento, corta, titoli_); }),
              u"La stampa non è riuscita: la stampante non ha fogli A4."_s);
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
