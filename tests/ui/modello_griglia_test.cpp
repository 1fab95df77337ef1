#include "ui/griglia/modello_griglia.h"

#include <QAbstractItemModelTester>

#include "ui/finestra.h"
#include "ui/griglia/vista_griglia.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class ModelloGrigliaTest : public prova::FinestraTest {
  protected:
    MetaAperta Provenza() {
        ImportaEsempio(u"provenza"_s);
        return Sessione(cartella_.Percorso()).ApriMeta(u"3"_s);
    }
    Cronovia Calcola(const MetaAperta& aperta) {
        Progress progress;
        return *Sessione(cartella_.Percorso()).Calcola(aperta, {}, progress).cronovia;
    }
    QString Testo(int riga, int colonna, int ruolo = Qt::DisplayRole) const {
        return modello_.index(riga, colonna).data(ruolo).toString();
    }

    ModelloGriglia modello_;
    const QAbstractItemModelTester esaminatore_{&modello_, QAbstractItemModelTester::FailureReportingMode::Warning};
};

TEST_F(ModelloGrigliaTest, ItineraryAndScheduleTakeTurns) {
    const MetaAperta aperta = Provenza();
    modello_.MostraItinerario(aperta.tappe, aperta.riepilogo, 17);
    EXPECT_EQ(modello_.rowCount(), 29);  // one free row behind the last stage
    EXPECT_EQ(modello_.columnCount(), 14);
    EXPECT_EQ(modello_.headerData(7, Qt::Horizontal, Qt::DisplayRole), u"Itinerario"_s);
    EXPECT_EQ(Testo(27, 0), u"28"_s);
    EXPECT_EQ(Testo(28, 1), u""_s);
    const Cronovia cronovia = Calcola(aperta);
    modello_.MostraCronovia(cronovia);
    EXPECT_EQ(modello_.rowCount(), static_cast<int>(cronovia.righe.size()));
    EXPECT_EQ(modello_.headerData(7, Qt::Horizontal, Qt::DisplayRole), u"Sosta"_s);
    modello_.MostraItinerario({}, {}, 17);
    EXPECT_EQ(modello_.rowCount(), 17);
}

TEST_F(ModelloGrigliaTest, RowsOfEachKindDifferByMoreThanColour) {
    modello_.MostraCronovia(Calcola(Provenza()));
    std::map<Segno, QString> significati;
    for (int riga = 0; riga < modello_.rowCount(); ++riga) {
        const Segno segno = modello_.SegnoDellaRiga(riga);
        const QString significato = Testo(riga, 0, Qt::ToolTipRole);
        EXPECT_TRUE(Testo(riga, 0, Qt::AccessibleTextRole).contains(significato));
        EXPECT_EQ(modello_.index(riga, 0).data(Qt::DecorationRole).value<QIcon>().isNull(), segno == Segno::Nessuno);
        significati.emplace(segno, significato);
    }
    for (const Segno segno : {Segno::FineGiorno, Segno::Pasto, Segno::Sosta, Segno::Guida}) {
        ASSERT_TRUE(significati.contains(segno));
        EXPECT_NE(significati[segno], u""_s);
    }
    EXPECT_EQ(significati[Segno::Nessuno], u""_s);
}

TEST_F(ModelloGrigliaTest, ALongScheduleIsScrolledToItsEnd) {
    MetaAperta aperta = Provenza();
    Tappa tappa{u"LUNGO"_s, u"A1"_s, 3, TipoStrada::Autostrada, {0, 1, 0}, false, {}};
    aperta.tappe.assign(5000, tappa);
    const Cronovia cronovia = Calcola(aperta);
    ASSERT_GE(cronovia.righe.size(), 10'000U);
    VistaGriglia vista;
    ModelloGriglia modello;
    vista.setModel(&modello);
    vista.resize(1200, 500);
    vista.show();
    modello.MostraCronovia(cronovia);
    QCoreApplication::processEvents();
    vista.scrollToBottom();
    EXPECT_TRUE(vista.viewport()->rect().intersects(vista.visualRect(modello.index(modello.rowCount() - 1, 1))));
}

}  // namespace
}  // namespace cronovia
