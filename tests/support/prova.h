// SPDX-License-Identifier: GPL-3.0-or-later
// What tests of several rooms share: a data folder of their own, whole files, readable messages.
#pragma once

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <csignal>
#include <ostream>
#include <utility>

#include "interaction/failure.h"

// GoogleTest would print a text as a list of numbers.
inline void PrintTo(const QString& testo, std::ostream* uscita) { *uscita << '"' << testo.toStdString() << '"'; }

namespace cronovia::prova {

/// A data folder, with blanks and accents in its path, that does not exist yet and goes with the object.
class CartellaDiProva {
  public:
    [[nodiscard]] QString Path() const { return radice_.filePath(QStringLiteral("I miei viaggi — città è")); }
    [[nodiscard]] QString Archivio() const { return Path() + QStringLiteral("/VandroCronovia.mdb"); }
    /// Names in the folder, sorted.
    [[nodiscard]] QStringList Contenuto() const {
        return QDir(Path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    }
    void Crea() const { ASSERT_TRUE(QDir().mkpath(Path())); }

  private:
    QTemporaryDir radice_;
};

inline QByteArray LeggiFile(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

inline void ScriviFile(const QString& path, const QByteArray& byte) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(byte), byte.size());
}

/// One byte of a file becomes 0.
inline void Guasta(const QString& percorso, qsizetype posto) {
    QByteArray byte = LeggiFile(percorso);
    ASSERT_LT(posto, byte.size());
    byte[posto] = '\0';
    ScriviFile(percorso, byte);
}

/// Does something while no file may grow over so many bytes.
template <typename Azione>
void ConDiscoPieno(rlim_t byte, Azione&& azione) {
    const auto prima = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limite{};
    getrlimit(RLIMIT_FSIZE, &limite);
    const rlimit stretto{byte, limite.rlim_max};
    setrlimit(RLIMIT_FSIZE, &stretto);
    std::forward<Azione>(azione)();
    setrlimit(RLIMIT_FSIZE, &limite);
    std::signal(SIGXFSZ, prima);
}

/// The message with which an action fails; a test failure and "" when it does not fail.
template <typename Azione>
QString MessaggioDi(Azione&& azione) {
    try {
        std::forward<Azione>(azione)();
    } catch (const Failure& failure) {
        return failure.Message();
    }
    ADD_FAILURE() << "the action was not refused";
    return {};
}

}  // namespace cronovia::prova
