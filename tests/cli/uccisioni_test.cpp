// SPDX-License-Identifier: GPL-3.0-or-later
// The program killed at any moment while it imports or converts: what it did is whole or absent, and nothing is lost.
// Some kills per run of the tests; CRONOVIA_UCCISIONI names another number for each of the two.
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QThread>
#include <iostream>

#include "exchange/scambio.h"
#include "exchange/vecchi/vecchi_record.h"
#include "programma.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

int Uccisioni() {
    const int quante = qEnvironmentVariableIntValue("CRONOVIA_UCCISIONI");
    return quante > 0 ? quante : 3;
}

QStringList Tutto(const QString& cartella) {
    Archive archive = Archive::Open(cartella);
    return prova::Tutto(archive);
}

void CopiaCartella(const QString& da, const QString& a) {
    QDir(a).removeRecursively();
    ASSERT_TRUE(QDir().mkpath(a));
    for (const QString& nome : QDir(da).entryList(QDir::Files))
        ASSERT_TRUE(QFile::copy(da + u'/' + nome, a + u'/' + nome));
}

/// Runs the program on a copy of a folder again and again, each time killed a little later or earlier.
class Uccisore {
  public:
    Uccisore(QString prima, QStringList argomenti) : prima_(std::move(prima)), argomenti_(std::move(argomenti)) {
        QElapsedTimer orologio;
        orologio.start();
        CopiaCartella(prima_, Cartella());
        Avvia().waitForFinished(60'000);
        durata_ = static_cast<int>(orologio.elapsed());
        dopo_ = Tutto(Cartella());
        EXPECT_NE(dopo_, Tutto(prima_));
    }

    [[nodiscard]] QString Cartella() const { return radice_.filePath(u"uccisa"_s); }
    [[nodiscard]] const QStringList& Dopo() const { return dopo_; }

    /// Tries until the program did not end before it was killed.
    void Uccidi() {
        for (int tentativo = 0; tentativo < 50; ++tentativo) {
            CopiaCartella(prima_, Cartella());
            QProcess& processo = Avvia();
            QThread::msleep(QRandomGenerator::global()->bounded(static_cast<quint32>(durata_ + 1)));
            processo.kill();
            processo.waitForFinished();
            const bool uccisa = processo.exitStatus() == QProcess::CrashExit;
            durata_ = uccisa ? durata_ + durata_ / 20 + 1 : durata_ * 9 / 10;
            if (uccisa) return;
        }
        ADD_FAILURE() << "the program ends faster than it can be killed";
    }

  private:
    QProcess& Avvia() {
        processo_ = std::make_unique<QProcess>();
        processo_->start(QStringLiteral(CRONOVIA_PROGRAM), QStringList{u"--cartella"_s, Cartella()} + argomenti_);
        EXPECT_TRUE(processo_->waitForStarted());
        return *processo_;
    }

    QTemporaryDir radice_;
    QString prima_;
    QStringList argomenti_;
    std::unique_ptr<QProcess> processo_;
    int durata_ = 0;
    QStringList dopo_;
};

// An archive with one trip.
void Comincia(const prova::CartellaDiProva& cartella) {
    Archive archive = Archive::Open(cartella.Path());
    prova::Inserisci(archive, Table::MeteVandro, {u"000001"_s, u"ALBA"_s});
    prova::Inserisci(archive, Table::Itinerari, {u"000001"_s, u"0001"_s, u"BRA"_s});
}

TEST(Uccisioni, AnImportIsWholeOrAbsent) {
    const prova::CartellaDiProva cartella;
    Comincia(cartella);
    QByteArray mete;
    QByteArray tappe;
    for (int i = 2; i < 3000; ++i) {
        const QByteArray numero = QByteArray::number(i).rightJustified(6, '0');
        mete += numero + "|Meta " + numero + "|I\n";
        tappe += numero + "|0001|Tappa " + numero + "\n";
    }
    const QString file = cartella.Path() + u"/amici.iei"_s;
    prova::ScriviFile(file, prova::Mete(mete) + prova::Tappe(tappe));
    const QStringList prima = Tutto(cartella.Path());
    Uccisore uccisore(cartella.Path(), {u"importa"_s, file});
    int interi = 0;
    for (int i = 0; i < Uccisioni(); ++i) {
        uccisore.Uccidi();
        const QStringList adesso = Tutto(uccisore.Cartella());
        ASSERT_TRUE(adesso == prima || adesso == uccisore.Dopo());
        if (adesso != prima) ++interi;
    }
    std::cout << "imports killed: " << Uccisioni() << ", whole " << interi << ", absent " << Uccisioni() - interi
              << '\n';
}

// Each old file is there still, or its copy is.
void NienteEPerso(const QString& vecchia, const QString& cartella) {
    for (const QString& nome : QDir(vecchia).entryList({u"*.dat"_s}, QDir::Files)) {
        const QByteArray byte = prova::LeggiFile(vecchia + u'/' + nome);
        bool trovato = QFile::exists(cartella + u'/' + nome) && prova::LeggiFile(cartella + u'/' + nome) == byte;
        for (const QString& copie : QDir(cartella).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const QString copia = cartella + u'/' + copie + u'/' + nome;
            trovato = trovato || (QFile::exists(copia) && prova::LeggiFile(copia) == byte);
        }
        ASSERT_TRUE(trovato) << nome.toStdString();
    }
}

void ScriviVecchiFile(const QString& cartella) {
    QByteArray mete;
    QByteArray guida;
    for (int i = 1; i <= 60; ++i) {
        const QByteArray numero = QByteArray::number(i).rightJustified(4, '0');
        mete += (("META " + numero).leftJustified(97) + numero).leftJustified(128);
        QByteArray tappe = (QByteArray("20").leftJustified(24) + "20 ").leftJustified(64);
        for (int k = 0; k < 20; ++k) tappe += (("TAPPA " + numero).leftJustified(24) + " 10A").leftJustified(64);
        prova::ScriviFile(cartella + u"/vand%1.dat"_s.arg(QString::fromLatin1(numero)), tappe);
        guida += (("TAPPA " + numero).leftJustified(30) + "1Duomo").leftJustified(128);
    }
    prova::ScriviFile(cartella + u"/VandMete.dat"_s, mete);
    prova::ScriviFile(cartella + u"/VandGuid.dat"_s, guida);
}

TEST(Uccisioni, AConversionIsWholeOrAbsentAndCanBeDoneAgain) {
    const prova::CartellaDiProva cartella;
    Comincia(cartella);
    ScriviVecchiFile(cartella.Path());
    const QStringList prima = Tutto(cartella.Path());
    const auto vecchi = QDir(cartella.Path()).entryList({u"vand*.dat"_s}, QDir::Files).size();
    Uccisore uccisore(cartella.Path(), {u"converte"_s});
    int interi = 0;
    int ripresi = 0;
    for (int i = 0; i < Uccisioni(); ++i) {
        uccisore.Uccidi();
        const QStringList adesso = Tutto(uccisore.Cartella());
        ASSERT_TRUE(adesso == prima || adesso == uccisore.Dopo());
        if (adesso != prima) ++interi;
        NienteEPerso(cartella.Path(), uccisore.Cartella());
        const auto rimasti = QDir(uccisore.Cartella()).entryList({u"vand*.dat"_s}, QDir::Files).size();
        ASSERT_TRUE(adesso != prima || rimasti == vecchi);
        ASSERT_EQ(QFile::exists(uccisore.Cartella() + u"/VandMete.dat"_s), rimasti > 0);
        if (rimasti == 0) continue;
        ++ripresi;
        const prova::Risposta ancora =
            prova::Programma::EseguiNudo({u"--cartella"_s, uccisore.Cartella(), u"converte"_s});
        ASSERT_EQ(ancora.codice, 0) << ancora.errori.toStdString();
        ASSERT_EQ(Tutto(uccisore.Cartella()), uccisore.Dopo());
        ASSERT_EQ(QDir(uccisore.Cartella()).entryList({u"Vecchi file*"_s}, QDir::Dirs).size(), 1);
    }
    std::cout << "conversions killed: " << Uccisioni() << ", whole " << interi << ", absent " << Uccisioni() - interi
              << ", done again " << ripresi << '\n';
}

}  // namespace
}  // namespace cronovia
