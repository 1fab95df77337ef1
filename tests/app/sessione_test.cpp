// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sessione.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include "exchange/iei/importa_mete.h"
#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class SessioneTest : public testing::Test {
  protected:
    void ImportaProvenza() {
        ImportaMete({sessione_.Archivio(), QStringLiteral(CRONOVIA_EXAMPLES "/provenza.iei"), {}}, progress_);
    }
    void CambiaMeta(int campo, const QString& valore) {
        Record record = *sessione_.Archivio().SelectFirst({Table::MeteVandro, {}});
        record[campo] = valore;
        sessione_.Archivio().Update(Table::MeteVandro, record);
    }
    int Giorni(const OpzioniCalcolo& opzioni = {}) {
        return sessione_.ApriECalcola(u"3"_s, opzioni, progress_).esito.cronovia->fine->giorni;
    }

    prova::CartellaDiProva cartella_;
    Progress progress_;
    Sessione sessione_{cartella_.Path()};
};

TEST_F(SessioneTest, ANewArchiveGetsStandardParametersAndLaterOnesKeepTheirs) {
    Record record = *sessione_.Archivio().SelectFirst({Table::Parametri, {}});
    EXPECT_EQ(ParametriDaRecord(record), ParametriViaggio());
    ParametriViaggio miei;
    miei.mediaKm = {90, 80, 60, 45};
    record.values = ValoriDeiParametri(miei);
    sessione_.Archivio().Update(Table::Parametri, record);
    Sessione dopo(cartella_.Path());
    EXPECT_EQ(dopo.Archivio().Count(Table::TipoGuida), 9);
    EXPECT_EQ(dopo.Archivio().Count(Table::Parametri), 1);
    const QString codice = dopo.NuovaMeta(u"corsica"_s, u"francia"_s, QDate(2027, 6, 5).startOfDay());
    EXPECT_EQ(dopo.ApriMeta(codice).meta.parametri, miei);
}

TEST_F(SessioneTest, ATripIsOpenedByItsCodeOnly) {
    ImportaProvenza();
    const MetaAperta aperta = sessione_.ApriMeta(u" 03 "_s);
    EXPECT_EQ(aperta.meta.codice, u"000003"_s);
    ASSERT_EQ(aperta.tappe.size(), 28U);
    EXPECT_EQ(aperta.tappe[13].guida, (Durata{0, 5, 45}));
    EXPECT_EQ(aperta.riepilogo.totali.km[kTuttiITipi], 1317);
    for (const auto& codice : {u"000004"_s, u""_s, u"00000*"_s}) {
        EXPECT_TRUE(prova::MessaggioDi([&] { sessione_.ApriMeta(codice); }).startsWith(u"Non esiste nessuna mèta"_s));
    }
}

TEST_F(SessioneTest, TheDaysWantedAreAtLeastThoseOfDriving) {
    ImportaProvenza();
    for (const auto& [memorizzati, attesi] : {std::pair{u"000"_s, 0}, {u"001"_s, 2}, {u"010"_s, 10}}) {
        CambiaMeta(mete::GiorniAdeguamento, memorizzati);
        EXPECT_EQ(sessione_.ApriMeta(u"3"_s).meta.giorniAdeguamento, attesi);
    }
}

TEST_F(SessioneTest, OptionsHoldForOneCalculation) {
    ImportaProvenza();
    CambiaMeta(mete::GiorniAdeguamento, u"010"_s);
    const QByteArray prima = prova::LeggiFile(cartella_.Archivio());
    EXPECT_EQ(Giorni(), 10);
    EXPECT_EQ(Giorni({12, std::nullopt}), 12);
    EXPECT_EQ(Giorni({0, std::nullopt}), 8);
    EXPECT_EQ(Giorni({0, CalcoloSoste::NessunaSosta}), 3);
    EXPECT_TRUE(prova::LeggiFile(cartella_.Archivio()) == prima);
}

// What another program writes while a schedule is computed.
struct AltroCheScrive : Progress {
    explicit AltroCheScrive(const QString& cartella) : altro(Archive::Open(cartella)) {}
    void Title(const QString& /*title*/) override { altro.Delete(Table::GuidaCitta, ++scritte); }
    Archive altro;
    int scritte = 0;
};

TEST_F(SessioneTest, WhileAScheduleIsComputedOthersCanWriteAndItKeepsItsGuide) {
    ImportaProvenza();
    const auto visite = [](const EsitoCalcolo& esito) { return esito.cronovia->tabella.totaleSoste; };
    const MetaCalcolata ferma = sessione_.ApriECalcola(u"3"_s, {}, progress_);
    AltroCheScrive altro(cartella_.Path());
    EXPECT_EQ(visite(sessione_.ApriECalcola(u"3"_s, {}, altro).esito), visite(ferma.esito));
    EXPECT_GT(altro.scritte, 1);
}

TEST(Sessione, TheStartOnOfferIsTheQuarterBefore) {
    const std::vector<std::pair<QTime, QTime>> casi = {
        {{10, 52, 31}, {10, 45}}, {{10, 45}, {10, 45}}, {{0, 14, 59}, {0, 0}}, {{23, 59, 59}, {23, 45}}};
    const QDate giorno(2027, 6, 5);
    for (const auto& [adesso, proposto] : casi)
        EXPECT_EQ(InizioProposto({giorno, adesso}), QDateTime(giorno, proposto));
}

}  // namespace
}  // namespace cronovia
