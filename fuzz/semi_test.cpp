// SPDX-License-Identifier: GPL-3.0-or-later
// Every fuzz target over every seed and example route, whatever it is made for: a finding ends the test.
#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <array>
#include <cstdint>

using Bersaglio = int(const std::uint8_t*, std::size_t);
extern "C" {
Bersaglio archivio_fuzz, iei_fuzz, modello_fuzz, navigatore_fuzz, percorso_fuzz, scambio_fuzz, vecchi_fuzz;
}

namespace {

class Semi : public testing::TestWithParam<Bersaglio*> {};

TEST_P(Semi, AreReadWithoutAFinding) {
    int letti = 0;
    for (const char* cartella : {CRONOVIA_SEMI, CRONOVIA_PERCORSI}) {
        for (QDirIterator i(QString::fromUtf8(cartella), QDir::Files, QDirIterator::Subdirectories); i.hasNext();) {
            QFile file(i.next());
            SCOPED_TRACE(file.fileName().toStdString());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            const QByteArray byte = file.readAll();
            EXPECT_EQ(GetParam()(reinterpret_cast<const std::uint8_t*>(byte.data()), std::size_t(byte.size())), 0);
            ++letti;
        }
    }
    EXPECT_GT(letti, 15);
}

constexpr std::array kBersagli{archivio_fuzz, iei_fuzz,     modello_fuzz, navigatore_fuzz,
                               percorso_fuzz, scambio_fuzz, vecchi_fuzz};
INSTANTIATE_TEST_SUITE_P(Targets, Semi, testing::ValuesIn(kBersagli));

}  // namespace
