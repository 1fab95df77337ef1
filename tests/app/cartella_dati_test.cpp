// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/cartella_dati.h"

#include <gtest/gtest.h>

#include "store/archive.h"
#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

// Whatever can be written, or holds an archive: without its mark a folder of programs is no place for data.
TEST(CartellaDati, AskedForElsePortableElseTheUsers) {
    const QTemporaryDir cartella;
    const QString programma = cartella.path();
    const auto scelta = [&](const QString& richiesta) { return CartellaDati({richiesta, programma, u"utente"_s}); };
    prova::ScriviFile(Archive::FilePath(programma), {});
    EXPECT_EQ(scelta({}), u"utente"_s);
    prova::ScriviFile(FilePortatile(programma), {});
    EXPECT_EQ(scelta({}), programma);
    EXPECT_EQ(scelta(u"richiesta"_s), u"richiesta"_s);
}

}  // namespace
}  // namespace cronovia
