// Whole journeys against reviewed answers: tests/data/journeys holds exchange files, and beside each what its trip's
// itinerary and schedule are. After a change the answers are written anew by
//     CRONOVIA_RIGENERA=1 build/dev/tests/schedule/viaggi_test
// which fails on purpose, so that it cannot pass unnoticed; review the differences before keeping them.
#include <gtest/gtest.h>

#include <QDir>

#include "app/sessione.h"
#include "exchange/importa_mete.h"
#include "itinerary/itinerari.h"
#include "schedule/colonne.h"
#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

template <typename Testi>
QString Riga(const Testi& testi) {
    QString riga = QStringList(testi.begin(), testi.end()).join(u'\t');
    while (riga.endsWith(u'\t')) riga.chop(1);
    return riga + u'\n';
}

QString RigaTotali(const TestiTotali& t) { return u"totali\t"_s + t.traghetti + u'\t' + Riga(t.km) + Riga(t.tempo); }

class Viaggi : public testing::Test {
  protected:
    // The archive holds the trip of one file at a time.
    MetaAperta Importa(const QString& path, const QString& codice) {
        Transaction transaction(sessione_.Archivio());
        for (const Tabella tabella : {Tabella::MeteVandro, Tabella::Itinerari, Tabella::GuidaCitta}) {
            sessione_.Archivio().CancellaTabella(tabella, {}, progress_);
        }
        transaction.Commit();
        ImportaMete({sessione_.Archivio(), path, {}}, progress_);
        return sessione_.ApriMeta(codice);
    }

    QString Risposta(const QString& path, const QString& codice) {
        MetaAperta aperta = Importa(path, codice);
        const std::vector<Tappa> importate = aperta.tappe;
        MemorizzaTappeItinerario(sessione_.Archivio(), codice, importate, OrarioCorretto(aperta.meta.parametri),
                                 progress_);
        aperta = sessione_.ApriMeta(codice);
        EXPECT_EQ(aperta.tappe, importate) << "saved and read again";
        QString testo = codice + u'\n';
        for (std::size_t i = 0; i < aperta.tappe.size(); ++i) {
            testo += Riga(TestiDellaTappa(static_cast<int>(i) + 1, aperta.tappe[i], aperta.riepilogo.tappe[i]));
        }
        testo += RigaTotali(Testi(aperta.riepilogo.totali, aperta.riepilogo.guidaGiorno));
        testo += u"giorni\t%1\n\n"_s.arg(aperta.riepilogo.giorniMinimi);

        const EsitoCalcolo esito = sessione_.Calcola(aperta, {}, progress_);
        const Cronovia& cronovia = *esito.cronovia;
        for (const RigaGriglia& riga : TestiDellaCronovia(cronovia)) testo += Riga(riga);
        testo += RigaTotali(Testi(cronovia.totali, cronovia.orario.GuidaGiorno()));
        return testo + u"fine\t"_s + Riga(TestiFine(cronovia)) +
               u"passate\t%1\t%2\n"_s.arg(QString::number(esito.tentativi), esito.messaggio);
    }

    prova::CartellaDiProva cartella_;
    Sessione sessione_{cartella_.Percorso()};
    Progress progress_;
};

TEST_F(Viaggi, AreAsReviewed) {
    const QDir cartella(QStringLiteral(CRONOVIA_TEST_DATA "/journeys"));
    const QStringList viaggi = cartella.entryList({u"*.iei"_s}, QDir::Files, QDir::Name);
    ASSERT_GT(viaggi.size(), 50);
    for (const QString& viaggio : viaggi) {
        const QString risposta = cartella.filePath(viaggio.chopped(4) + u".txt"_s);
        const QString attesa = QString::fromUtf8(prova::LeggiFile(risposta));
        const QString ottenuta = Risposta(cartella.filePath(viaggio), attesa.section(u'\n', 0, 0));
        if (ottenuta == attesa) continue;
        if (qEnvironmentVariableIsSet("CRONOVIA_RIGENERA")) prova::ScriviFile(risposta, ottenuta.toUtf8());
        const QStringList righe = ottenuta.split(u'\n');
        const QStringList attese = attesa.split(u'\n');
        for (int i = 0; i < std::max(righe.size(), attese.size()); ++i) {
            EXPECT_EQ(righe.value(i), attese.value(i)) << viaggio.toStdString() << ", line " << i + 1;
            if (HasFailure()) break;
        }
    }
}

}  // namespace
}  // namespace cronovia
