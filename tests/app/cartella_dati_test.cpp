// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/cartella_dati.h"

#include <gtest/gtest.h>

#include "store/archive.h"
#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

TEST(CartellaDati, AskedForElsePortableElseTheUsers) {
    const QTemporaryDir cartella;
    const QString programma = cartella.path();
    const auto scelta = [&](const QString& richiesta, const QString& del) {
        return CartellaDati({richiesta, del, u"utente"_s});
    };
    EXPECT_EQ(scelta(u"richiesta"_s, programma), u"richiesta"_s);
    EXPECT_EQ(scelta({}, programma), programma);
    EXPECT_EQ(scelta({}, programma + u"/manca"_s), u"utente"_s);

    // With an archive, it is the folder even when it cannot be written.
    prova::ScriviFile(Archive::FilePath(programma), {});
    QFile::setPermissions(programma, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    EXPECT_EQ(scelta({}, programma), programma);
    QFile::setPermissions(programma, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

}  // namespace
}  // namespace cronovia
