// SPDX-License-Identifier: GPL-3.0-or-later
// What `itinerario` writes `tappe` reads back: every journey, and one with all that others can set for a stage.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "cli/riga_comando.h"
#include "programma.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class TappeRilette : public testing::Test {
  protected:
    QString Esegui(const QStringList& parole) {
        QString uscita;
        QString errori;
        QTextStream flussoUscita(&uscita);
        QTextStream flussoErrori(&errori);
        const QStringList riga = QStringList{u"cronovia"_s, u"--cartella"_s, cartella_.Path()} + parole;
        EXPECT_EQ(EseguiRigaDiComando(riga, {}, {}, flussoUscita, flussoErrori), 0) << errori.toStdString();
        flussoUscita.flush();
        return uscita;
    }

    // The stored rows, but what is worked out from the guide. A kind of road that nobody knows counts as local.
    QJsonArray Righe(const QString& codice) {
        const QString json = Esegui({u"itinerario"_s, codice, u"--formato"_s, u"json"_s});
        QJsonArray righe = QJsonDocument::fromJson(json.toUtf8())[u"tappe"].toArray();
        for (auto&& riga : righe) {
            QJsonObject tappa = riga.toObject();
            tappa.remove(u"SostaGuidaCitta");
            const QString tipo = tappa[u"TipoStrada"].toString();
            const bool noto = QStringView(u"ASPL").contains(tipo);
            if (!noto) tappa[u"TipoStrada"] = tappa[u"Chilometri"] == u"0"_s ? QString() : u"L"_s;
            riga = tappa;
        }
        return righe;
    }

    void TornaUguale(const QString& codice) {
        const QJsonArray prima = Righe(codice);
        if (prima.isEmpty()) return;
        for (const QString& formato : {u"tsv"_s, u"json"_s}) {
            const QString file = cartella_.Path() + u"/tappe."_s + formato;
            prova::ScriviFile(file, Esegui({u"itinerario"_s, codice, u"--formato"_s, formato}).toUtf8());
            EXPECT_FALSE(Esegui({u"tappe"_s, codice, file}).contains(u"Non letti"_s));
            EXPECT_EQ(Righe(codice), prima) << formato.toStdString();
            ++rilette_;
        }
    }

    prova::ProgrammaQui programma_;
    prova::CartellaDiProva cartella_;
    int rilette_ = 0;
};

TEST_F(TappeRilette, GiveEveryJourneyAgain) {
    for (const QString& cartella :
         {QStringLiteral(CRONOVIA_TEST_DATA "/journeys"), QStringLiteral(CRONOVIA_EXAMPLES)}) {
        for (const QString& nome : QDir(cartella).entryList({u"*.iei"_s}, QDir::Files)) {
            SCOPED_TRACE(nome.toStdString());
            Esegui({u"importa"_s, cartella + u'/' + nome});
            const QStringList mete = Esegui({u"elenca"_s, u"--formato"_s, u"tsv"_s}).split(u'\n', Qt::SkipEmptyParts);
            for (const QString& meta : mete.sliced(1)) {
                TornaUguale(meta.section(u'\t', 0, 0));
                Esegui({u"elimina"_s, meta.section(u'\t', 0, 0), u"--sì"_s});
            }
        }
    }
    EXPECT_GT(rilette_, 150);
}

TEST_F(TappeRilette, GiveHoursAndNotesAgain) {
    const QString codice =
        Esegui({u"nuova"_s, u"SARDEGNA"_s, u"ITALIA"_s, u"--inizio"_s, u"26/06/2027 08:00"_s}).trimmed();
    Esegui({u"tappe"_s, codice, u"--aggiungi"_s, u"tappa='LIVORNO \"1\""_s, u"Nota=+ di \"tutto\"; a, b"_s,
            u"telefono=+39 0586 1"_s});
    Esegui({u"tappe"_s, codice, u"--aggiungi"_s, u"tappa=OLBIA"_s, u"TraghettoOra=22:00"_s,
            u"TraghettoData=26/06/2027"_s, u"Navigazione=00:08:30"_s, u"Imbarco=01:30"_s, u"NonPrimaOra=06:00"_s,
            u"NonDopoOra=09:30"_s, u"NonDopoData=27/06/2027"_s, u"VisiteDa=9:00"_s, u"VisiteA=24:00"_s,
            u"Link=https://a.it/?b=c"_s, u"Prenotazione==X-1"_s, u"PrezzoTraghetto=145,5"_s, u"PrezzoNotte=30"_s,
            u"PrezzoIngresso=0.5"_s});
    Esegui({u"tappe"_s, codice, u"--aggiungi"_s, u"tappa=NUORO"_s, u"km=?"_s, u"sosta=*"_s});
    const QJsonObject olbia = Righe(codice)[1].toObject();
    const std::pair<QString, QString> casi[] = {
        {u"TraghettoOra"_s, u"2200"_s},      {u"TraghettoData"_s, u"26062027"_s}, {u"Navigazione"_s, u"00:08:30"_s},
        {u"Imbarco"_s, u"0130"_s},           {u"NonPrimaOra"_s, u"0600"_s},       {u"NonDopoOra"_s, u"0930"_s},
        {u"NonDopoData"_s, u"27062027"_s},   {u"VisiteDa"_s, u"0900"_s},          {u"VisiteA"_s, u"2400"_s},
        {u"Link"_s, u"https://a.it/?b=c"_s}, {u"Prenotazione"_s, u"=X-1"_s},      {u"PrezzoTraghetto"_s, u"145,50"_s},
        {u"PrezzoNotte"_s, u"30,00"_s},      {u"PrezzoIngresso"_s, u"0,50"_s}};
    for (const auto& [campo, atteso] : casi) EXPECT_EQ(olbia[campo], atteso) << campo.toStdString();
    TornaUguale(codice);
}

}  // namespace
}  // namespace cronovia
