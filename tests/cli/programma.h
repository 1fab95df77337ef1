// SPDX-License-Identifier: GPL-3.0-or-later
// The program as a process, with a data folder of its own.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QStringList>
#include <array>

#include "support/prova.h"

namespace cronovia::prova {

struct Risposta {
    int codice = -1;  ///< exit code; -1 when the program crashed or never ended
    QString uscita;
    QString errori;
};

/// What verbs need that are run within the test.
class ProgrammaQui {
  private:
    std::array<char, 9> nome_{"cli_test"};
    std::array<char*, 2> argomenti_{nome_.data(), nullptr};
    int quanti_ = 1;
    QCoreApplication programma_{quanti_, argomenti_.data()};
};

/// Runs the program in a locale whose characters are ASCII, where a text that is not UTF-8 by itself would suffer.
class Programma {
  public:
    [[nodiscard]] const CartellaDiProva& Cartella() const { return cartella_; }

    /// Runs it as it is, on no particular data folder.
    static Risposta EseguiNudo(const QStringList& argomenti, const QString& locale = QStringLiteral("C")) {
        QProcess processo;
        QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
        ambiente.insert(QStringLiteral("LC_ALL"), locale);
        for (const char* schermo : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            ambiente.remove(QString::fromLatin1(schermo));
        }
        processo.setProcessEnvironment(ambiente);
        processo.start(QStringLiteral(CRONOVIA_PROGRAM), argomenti);
        if (!processo.waitForFinished(60'000) || processo.exitStatus() != QProcess::NormalExit) return {};
        return {processo.exitCode(), QString::fromUtf8(processo.readAllStandardOutput()),
                QString::fromUtf8(processo.readAllStandardError())};
    }

    [[nodiscard]] Risposta Esegui(const QStringList& argomenti, const QString& locale = QStringLiteral("C")) const {
        return EseguiNudo(QStringList{QStringLiteral("--cartella"), cartella_.Path()} + argomenti, locale);
    }

    /// What a command that must succeed, and then has nothing to say on standard error, writes.
    [[nodiscard]] QString Uscita(const QStringList& argomenti) const {
        const Risposta risposta = Esegui(argomenti);
        EXPECT_EQ(risposta.codice, 0) << argomenti.join(u' ').toStdString();
        EXPECT_EQ(risposta.errori, QString()) << argomenti.join(u' ').toStdString();
        return risposta.uscita;
    }

    void ImportaEsempio(const QString& nome) const {
        ASSERT_NE(Uscita({QStringLiteral("importa"), FileEsempio(nome)}), QString());
    }

    static QString FileEsempio(const QString& nome) {
        return QStringLiteral(CRONOVIA_EXAMPLES) + u'/' + nome + QStringLiteral(".iei");
    }

    [[nodiscard]] QByteArray ByteArchivio() const { return LeggiFile(cartella_.Archivio()); }

  private:
    CartellaDiProva cartella_;
};

}  // namespace cronovia::prova
