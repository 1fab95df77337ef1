// SPDX-License-Identifier: GPL-3.0-or-later
// PDF files, read back with poppler's tools.
#include "print/file_pdf.h"

#include <gmock/gmock.h>

#include <QImage>
#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>

#include "print/pittore.h"
#include "print/stampa_tutto.h"
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

// The picture of the journey on paper, looked at point by point.
TEST_F(FilePdf, ShowsTheJourneyOnItsMaps) {
    const Stampato documento = StampaLeScelte(prova::ConMappa(), prova::kPiede, {true, false}, titoli_);
    Scrivi(documento);
    Poppler(u"pdftoppm"_s, {u"-r"_s, u"254"_s, u"-l"_s, u"1"_s, u"-png"_s, u"-singlefile"_s, path_, path_});
    const QImage foglio(path_ + u".png"_s);
    ASSERT_FALSE(foglio.isNull());
    const Carta& carta = documento.pagine.front().carte.at(0);
    const auto dove = [&](const Posizione& posizione) {
        return (carta.angolo + QPointF(kMargineFoglio, kMargineFoglio) +
                carta.vista.Pixel(Proietta(posizione)) * kPixelCarta) *
               10;
    };
    const auto grigio = [&](const QPointF& punto) { return qGray(foglio.pixel(punto.toPoint())); };
    // How many of the points between two places are as dark as a line.
    const auto scuri = [&](const Posizione& da, const Posizione& a) {
        int quanti = 0;
        for (int i = 10; i < 90; ++i) quanti += grigio(dove(da) + (dove(a) - dove(da)) * i / 100) < 160 ? 1 : 0;
        return quanti;
    };
    const ColoriMappa colori = ColoriDellaCarta();
    const Posizione mare{42.3, 9.9};
    EXPECT_NEAR(grigio(dove(mare)), qGray(colori.mare.rgb()), 2);
    EXPECT_EQ(grigio(dove({44.8, 11.0})), 255) << "land takes no ink";
    const auto& luoghi = carta.mappa->viaggio.luoghi;
    const auto punto = [&](std::size_t i) { return Ricava(luoghi.at(i).dove); };
    EXPECT_EQ(grigio(dove(punto(0))), 0) << "a place that is known is full";
    EXPECT_EQ(grigio(dove(punto(3))), 255) << "one that is guessed is hollow";
    EXPECT_GT(scuri(punto(0), punto(1)), 70) << "driven: a whole line";
    const int traghetto = scuri(punto(1), punto(2));
    EXPECT_TRUE(traghetto > 25 && traghetto < 65) << traghetto << ": a ferry's line is dashed";
}

// Bars are told apart without their colours, too: by the pattern of their strokes.
TEST_F(FilePdf, FillsEachKindOfTimeWithItsPattern) {
    Stampato documento{u"Barre"_s, {{}}};
    for (int i = 0; i < kGeneriPezzo; ++i) {
        documento.pagine[0].barre.push_back({{20, 20.0 + 10 * i, 40, 8}, static_cast<GenerePezzo>(i)});
    }
    Scrivi(documento);
    Poppler(u"pdftoppm"_s, {u"-r"_s, u"254"_s, u"-png"_s, u"-singlefile"_s, path_, path_});
    const QImage foglio(path_ + u".png"_s);
    for (const Barra& barra : documento.pagine[0].barre) {
        const AspettoPezzo& aspetto = Aspetto(barra.genere);
        const QRectF dentro = barra.area.translated(kMargineFoglio, kMargineFoglio).adjusted(1, 1, -1, -1);
        const QImage parte = foglio.copy(QRectF(dentro.topLeft() * 10, dentro.size() * 10).toRect());
        const int fondo = qGray(aspetto.fondo);
        const int soglia = std::abs(fondo - qGray(aspetto.segno)) / 2;
        int segnati = 0;
        for (int i = 0; i < parte.width() * parte.height(); ++i) {
            const QRgb colore = parte.pixel(i % parte.width(), i / parte.width());
            segnati += std::abs(qGray(colore) - fondo) > soglia ? 1 : 0;
        }
        const double coperto = 1.0 * segnati / (parte.width() * parte.height());
        EXPECT_EQ(coperto > 0.02, aspetto.trama != Trama::Piena) << aspetto.nome.toUtf8().constData() << ' ' << coperto;
        EXPECT_LT(coperto, 0.5) << aspetto.nome.toUtf8().constData();
    }
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
    // On a sheet that is shorter all of it is there, smaller.
    Stampato lettera = documento;
    lettera.carta = {215.9, 279.4};
    Scrivi(lettera);
    const std::vector<Parola> ridotte = Parole(path_);
    ASSERT_EQ(ridotte.size(), parole.size());
    for (const Parola& parola : ridotte) EXPECT_TRUE(parola.base < 279 && parola.x > 0) << parola.testo.toStdString();
    EXPECT_NEAR((ridotte[0].base + kMargineFoglio) / (parole[0].base + kMargineFoglio), 279.4 / 297, 0.01);
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
