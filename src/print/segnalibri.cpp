// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/segnalibri.h"

#include <QRegularExpression>
#include <optional>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// What the end of a file tells of it.
struct Struttura {
    int oggetti = 0;          // the numbers below it are taken
    int radice = 0;           // number of the root
    QString coda;             // the entries of the trailer but for the number of objects
    qsizetype indice = 0;     // where the table of objects begins
    std::vector<int> pagine;  // their numbers
};

QRegularExpressionMatch Cerca(const QString& testo, const QString& forma) {
    return QRegularExpression(forma, QRegularExpression::DotMatchesEverythingOption).match(testo);
}

// The text of an object, by the table that begins at `indice`, whose lines have twenty characters each.
QString Oggetto(const QByteArray& pdf, qsizetype indice, int numero) {
    const qsizetype prima = pdf.indexOf('\n', pdf.indexOf('\n', indice) + 1) + 1;
    const qsizetype inizio = pdf.mid(prima + qsizetype{numero} * 20, 10).toLongLong();
    const qsizetype fine = pdf.indexOf("endobj", inizio);
    const QString testo = QString::fromLatin1(pdf.mid(inizio, fine - inizio));
    return testo.startsWith(QString::number(numero) + u" 0 obj"_s) ? testo : QString();
}

std::optional<Struttura> Leggi(const QByteArray& pdf) {
    const qsizetype trailer = pdf.lastIndexOf("trailer");
    const auto coda =
        Cerca(QString::fromLatin1(pdf.mid(trailer)), u"^trailer\\s*<<\\s*/Size (\\d+)(.*)>>\\s*startxref\\s+(\\d+)"_s);
    const auto radice = Cerca(coda.captured(2), u"/Root (\\d+) 0 R"_s);
    if (trailer < 0 || !radice.hasMatch()) return std::nullopt;
    Struttura struttura{coda.captured(1).toInt(),
                        radice.captured(1).toInt(),
                        coda.captured(2).trimmed(),
                        coda.captured(3).toLongLong(),
                        {}};
    const auto catalogo = Cerca(Oggetto(pdf, struttura.indice, struttura.radice), u"/Pages (\\d+) 0 R"_s);
    const auto figli =
        Cerca(Oggetto(pdf, struttura.indice, catalogo.captured(1).toInt()), u"/Kids\\s*\\[([^\\]]*)\\]"_s);
    static const QRegularExpression numero(u"(\\d+) 0 R"_s);
    for (const auto& pagina : numero.globalMatch(figli.captured(1))) {
        struttura.pagine.push_back(pagina.captured(1).toInt());
    }
    return struttura;
}

// A text in the file's way: UTF-16, in hexadecimal digits.
QByteArray InEsadecimale(const QString& testo) {
    QByteArray cifre = "<FEFF";
    for (const QChar c : testo) cifre += QByteArray::number(c.unicode(), 16).rightJustified(4, '0');
    return cifre + '>';
}

QByteArray Riferimento(int numero) { return QByteArray::number(numero) + " 0 R"; }

// New objects, and where each begins in the file that they are added to.
class Coda {
  public:
    explicit Coda(qsizetype inizio) : inizio_(inizio) { testo_ = "\n"; }

    void Oggetto(int numero, const QByteArray& contenuto) {
        indice_ += QByteArray::number(numero) + " 1\n" +
                   QByteArray::number(inizio_ + testo_.size()).rightJustified(10, '0') + " 00000 n \n";
        testo_ += QByteArray::number(numero) + " 0 obj\n<<" + contenuto + ">>\nendobj\n";
    }
    QByteArray Conclusa(const QByteArray& trailer) {
        const QByteArray inizio = QByteArray::number(inizio_ + testo_.size());
        return testo_ + "xref\n" + indice_ + "trailer\n<<" + trailer + ">>\nstartxref\n" + inizio + "\n%%EOF\n";
    }

  private:
    qsizetype inizio_;
    QByteArray testo_;
    QByteArray indice_;
};

}  // namespace

QByteArray SegnalibriInCoda(const QByteArray& pdf, const Stampato& documento) {
    const auto& segnalibri = documento.segnalibri;
    if (segnalibri.empty()) return {};
    const auto struttura = Leggi(pdf);
    if (!struttura || struttura->pagine.size() != documento.pagine.size()) return {};
    constexpr double kPunti = 72 / 25.4;
    const double riduzione = Riduzione(documento.carta);
    const int primo = struttura->oggetti + 1;
    const int ultimo = primo + static_cast<int>(segnalibri.size()) - 1;
    const QByteArray quanti = QByteArray::number(segnalibri.size());
    Coda coda(pdf.size());
    const QString radice = Oggetto(pdf, struttura->indice, struttura->radice);
    coda.Oggetto(struttura->radice, radice.section(u"<<"_s, 1).section(u">>"_s, 0, -2).toLatin1() + "/Outlines " +
                                        Riferimento(primo - 1) + "\n/PageMode /UseOutlines\n");
    coda.Oggetto(primo - 1, "/Type /Outlines /First " + Riferimento(primo) + " /Last " + Riferimento(ultimo) +
                                " /Count " + quanti);
    for (int numero = primo; const Segnalibro& segnalibro : segnalibri) {
        const double y = (documento.carta.height() - (kMargineFoglio + segnalibro.y) * riduzione) * kPunti;
        QByteArray voce = "/Title " + InEsadecimale(segnalibro.titolo) + " /Parent " + Riferimento(primo - 1) +
                          " /Dest [" + Riferimento(struttura->pagine[segnalibro.pagina]) + " /XYZ 0 " +
                          QByteArray::number(y, 'f', 1) + " null]";
        if (numero > primo) voce += " /Prev " + Riferimento(numero - 1);
        if (numero < ultimo) voce += " /Next " + Riferimento(numero + 1);
        coda.Oggetto(numero++, voce);
    }
    return coda.Conclusa("/Size " + QByteArray::number(ultimo + 1) + "\n" + struttura->coda.toLatin1() + "\n/Prev " +
                         QByteArray::number(struttura->indice) + "\n");
}

}  // namespace cronovia
