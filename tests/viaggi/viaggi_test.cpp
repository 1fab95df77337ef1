// SPDX-License-Identifier: GPL-3.0-or-later
// Whole journeys against reviewed answers: tests/data/journeys holds exchange files, and beside each what its trip's
// itinerary and schedule are; tests/data/giornate the days of some of them, and of the examples. After a change the
// answers are written anew by
//     CRONOVIA_RIGENERA=1 build/dev/tests/viaggi/viaggi_test
// which fails on purpose, so that it cannot pass unnoticed; review the differences before keeping them.
#include <gtest/gtest.h>

#include <QDir>

#include "app/sessione.h"
#include "exchange/iei/importa_mete.h"
#include "itinerary/itinerari.h"
#include "schedule/colonne.h"
#include "schedule/giorni_itinerario.h"
#include "schedule/strisce.h"
#include "schedule/testi_giornata.h"
#include "schedule/testi_ore.h"
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

// A day's line, what it does not tell, and its bars.
QString TestoDelGiorno(const Giornata& g, const StrisciaDelGiorno& striscia, const Cronovia& cronovia,
                       const GiorniItinerario& giorni) {
    QStringList parti = {TestoData(g.data), g.risveglio};
    if (const auto righe = giorni.Righe(g.numero - 1)) {
        parti += u"tappe %1-%2"_s.arg(righe->first).arg(righe->second);
        EXPECT_EQ(giorni.RigaFinale(g.numero - 1), righe->second);
        EXPECT_EQ(giorni.GiornataDi(righe->first), g.numero - 1);
    }
    for (const CambioGiorno& cambio : giorni.Cambi()) {
        if (cambio.da != g.numero) continue;
        parti += u"comincia %1 %2"_s.arg(cambio.dentro ? u"alla tappa"_s : u"prima di"_s).arg(cambio.riga);
    }
    parti += g.partenza ? TestoOrologio(*g.partenza) + u'-' + TestoOrologio(*g.arrivo) : u"fermo"_s;
    if (g.pranzo) parti += u"pranzo"_s;
    if (g.cena) parti += u"cena"_s;
    if (g.riposi > 0) parti += u"riposi %1"_s.arg(g.riposi);
    QStringList margini;  // in hours
    for (const int riga : g.righe) {
        const auto margine = MargineRientro(cronovia.righe[static_cast<std::size_t>(riga)]);
        if (margine) margini += QString::number(qRound(margine->Valore() / 10) / 10.0, 'f', 1);
    }
    parti += u"margini "_s + margini.join(u' ');
    QStringList barre;
    for (const PezzoDelGiorno& pezzo : striscia) {
        barre += TestoOreBrevi(pezzo.da) + u'-' + TestoOreBrevi(pezzo.a) + u' ' +
                 Aspetto(pezzo.genere).nome.toString() + u' ' + pezzo.luogo;
    }
    return RigaGiornata(g, cronovia) + u"\n\t"_s + parti.join(u'\t') + u"\n\t"_s + barre.join(u"; "_s) + u'\n';
}

// What holds for the days of every journey.
void Coerenti(const std::vector<Giornata>& giornate, const Cronovia& cronovia) {
    std::int64_t km = 0;
    double guida = 0;
    std::vector<int> righe;
    for (std::size_t i = 0; i < giornate.size(); ++i) {
        EXPECT_EQ(giornate[i].data, giornate[0].data + static_cast<int>(i));
        EXPECT_TRUE(i == 0 || giornate[i].risveglio == giornate[i - 1].notte);
        km += giornate[i].km;
        guida += giornate[i].guida.Valore();
        righe.insert(righe.end(), giornate[i].righe.begin(), giornate[i].righe.end());
    }
    EXPECT_EQ(km, cronovia.totali.km[kTuttiITipi]);
    EXPECT_NEAR(guida, cronovia.totali.tempo[kTuttiITipi].Valore(), 1);
    ASSERT_EQ(righe.size(), cronovia.righe.size());
    for (std::size_t i = 0; i < righe.size(); ++i) ASSERT_EQ(righe[i], static_cast<int>(i));
    for (std::size_t i = 1; i < cronovia.fasce.size(); ++i) {
        const Fascia& prima = cronovia.fasce[i - 1];
        const Fascia& dopo = cronovia.fasce[i];
        EXPECT_TRUE(prima.data < dopo.data || (prima.data == dopo.data && prima.a <= dopo.da)) << i;
        EXPECT_LE(dopo.da, dopo.a);  // a meal can take no time
    }
}

// Where the date changes a row says so: the one in which it does, or the one before, behind which the night falls.
void SegnanoIGiorni(const Cronovia& cronovia, NumeroGiorno partenza) {
    const RigaCronovia* prima = nullptr;
    bool segnato = false;  // since the last row with a moment, that one included
    for (const RigaCronovia& riga : cronovia.righe) {
        EXPECT_FALSE(riga.genere == GenereRiga::Guida && (riga.riposoDopo || riga.cambiaGiorno));
        if (!ConMomento(riga.genere)) {
            segnato = segnato || riga.riposoDopo;
            continue;
        }
        const NumeroGiorno ieri = prima != nullptr ? prima->data : partenza;
        const bool cambia = ieri < riga.data;
        EXPECT_TRUE(!cambia || prima == nullptr || segnato || riga.cambiaGiorno) << riga.tappa;
        EXPECT_TRUE(cambia || !riga.cambiaGiorno || riga.genere != GenereRiga::Sosta || riga.eventi.notteTardiva);
        segnato = riga.cambiaGiorno || riga.riposoDopo;
        prima = &riga;
    }
}

class Viaggi : public testing::Test {
  protected:
    // The archive holds the trip of one file at a time.
    MetaAperta Importa(const QString& path, const QString& codice) {
        Transaction transaction(sessione_.Archivio());
        std::vector<Table> tabelle = {Table::MeteVandro, Table::Itinerari, Table::GuidaCitta};
        tabelle.insert(tabelle.end(), TripTablesOnDemand().begin(), TripTablesOnDemand().end());
        for (const Table tabella : tabelle) {
            sessione_.Archivio().DeleteMatching(tabella, {}, progress_);
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

        const EsitoCalcolo esito = sessione_.ApriECalcola(codice, {}, progress_).esito;
        const Cronovia& cronovia = *esito.cronovia;
        Coerenti(Giornate(cronovia, *aperta.meta.dataInizio), cronovia);
        SegnanoIGiorni(cronovia, *aperta.meta.dataInizio);
        for (const RigaGriglia& riga : TestiDellaCronovia(cronovia)) testo += Riga(riga);
        testo += RigaTotali(Testi(cronovia.totali, cronovia.orario.GuidaGiorno()));
        if (cronovia.scadenza) testo += u"scadenza\t"_s + Testo(*cronovia.scadenza, cronovia) + u'\n';
        return testo + u"fine\t"_s + Riga(Testi(cronovia.fine).Elenco()) +
               u"passate\t%1\t%2\n"_s.arg(QString::number(esito.tentativi), esito.messaggio);
    }

    prova::CartellaDiProva cartella_;
    Sessione sessione_{cartella_.Path()};
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

TEST_F(Viaggi, HaveTheirDays) {
    const QDir cartella(QStringLiteral(CRONOVIA_TEST_DATA));
    for (const QString& nome :
         QDir(cartella.filePath(u"giornate"_s)).entryList({u"*.txt"_s}, QDir::Files, QDir::Name)) {
        SCOPED_TRACE(nome.toStdString());
        const QString attese = QString::fromUtf8(prova::LeggiFile(cartella.filePath(u"giornate/"_s + nome)));
        const QString viaggio = nome.chopped(4) + u".iei"_s;
        const QString esempio = QStringLiteral(CRONOVIA_EXAMPLES "/") + viaggio;
        const MetaAperta aperta =
            Importa(QFile::exists(esempio) ? esempio : cartella.filePath(u"journeys/"_s + viaggio),
                    attese.section(u'\n', 0, 0));
        const Cronovia cronovia = *sessione_.ApriECalcola(aperta.meta.codice, {}, progress_).esito.cronovia;
        QString ottenute = aperta.meta.codice + u'\n';
        const std::vector<Giornata> giornate = Giornate(cronovia, *aperta.meta.dataInizio);
        const std::vector<StrisciaDelGiorno> strisce = Strisce(cronovia, giornate);
        const GiorniItinerario giorni(cronovia, giornate, aperta.tappe);
        for (std::size_t i = 0; i < giornate.size(); ++i) {
            ottenute += TestoDelGiorno(giornate[i], strisce[i], cronovia, giorni);
        }
        if (qEnvironmentVariableIsSet("CRONOVIA_RIGENERA") && ottenute != attese) {
            prova::ScriviFile(cartella.filePath(u"giornate/"_s + nome), ottenute.toUtf8());
        }
        EXPECT_EQ(ottenute.toStdString(), attese.toStdString());
    }
}

}  // namespace
}  // namespace cronovia
