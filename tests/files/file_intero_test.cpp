// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/file_intero.h"

#include <sys/stat.h>

#include <QDir>
#include <filesystem>

#include "files/lettore_righe.h"
#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class FilePropriTest : public testing::Test {
  protected:
    FilePropriTest() {
        cartella_.Crea();
        prova::ScriviFile(cartella_.Archivio(), "x");
    }
    [[nodiscard]] QString File(const QString& nome) const { return cartella_.Path() + u'/' + nome; }
    [[nodiscard]] std::filesystem::path Nativo(const QString& nome) const { return File(nome).toStdString(); }

    prova::CartellaDiProva cartella_;
};

TEST_F(FilePropriTest, ArchiveFilesAreKnownUnderEveryName) {
    std::filesystem::create_symlink(Nativo(u"."_s), Nativo(u"altra"_s));
    std::filesystem::create_symlink(Nativo(u"VandroCronovia.mdb-wal"_s), Nativo(u"legame.iei"_s));
    std::filesystem::create_hard_link(Nativo(u"VandroCronovia.mdb"_s), Nativo(u"doppio.iei"_s));
    for (const QString& nome : {u"altra/VANDROCRONOVIA.MDB-SHM"_s, u"legame.iei"_s, u"doppio.iei"_s,
                                u"Copie/../VandroCronovia.mdb-journal"_s, u"altra/copie/a.iei"_s}) {
        EXPECT_NE(prova::MessaggioDi([&] { RifiutaFileArchivio(File(nome), cartella_.Archivio()); }), u""_s)
            << nome.toStdString();
    }
    for (const QString& nome : {u"VandroCronovia.iei"_s, u"altra/mia.iei"_s, u"Copie.iei"_s, u"manca/mia.iei"_s}) {
        RifiutaFileArchivio(File(nome), cartella_.Archivio());
    }
}

// A pipe that nobody writes to, or reads from, would be waited for without end.
TEST_F(FilePropriTest, WhatIsNoFileIsRefusedAtOnce) {
    ASSERT_EQ(mkfifo(Nativo(u"tubo"_s).c_str(), 0600), 0);
    std::filesystem::create_symlink(Nativo(u"tubo"_s), Nativo(u"legame"_s));
    for (const QString& nome : {File(u"tubo"_s), File(u"legame"_s), u"/dev/zero"_s, u"/dev/null"_s}) {
        EXPECT_NE(prova::MessaggioDi([&] { ApriInLettura(nome); }), u""_s);
        EXPECT_NE(prova::MessaggioDi([&] { RifiutaFileEsistente(nome, true); }), u""_s);
    }
}

}  // namespace
}  // namespace cronovia
