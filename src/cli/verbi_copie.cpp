// SPDX-License-Identifier: GPL-3.0-or-later
// verifica, copie, ripristina.
#include <QDateTime>
#include <QFileInfo>
#include <QMap>
#include <functional>

#include "app/copie.h"
#include "app/riparazione.h"
#include "calendar/testo.h"
#include "cli/json.h"
#include "cli/verbi.h"
#include "interaction/failure.h"
#include "store/archive_check.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString Gravita(const Finding& finding) { return finding.damage ? u"danno"_s : u"avviso"_s; }

TabellaTesti TabellaDelleSegnalazioni(const std::vector<Finding>& segnalazioni) {
    TabellaTesti tabella{{u"Gravita"_s, u"Descrizione"_s, u"Dettaglio"_s}, {}, {}};
    for (const Finding& finding : segnalazioni) {
        tabella.righe.push_back({Gravita(finding), finding.text, finding.detail});
    }
    return tabella;
}

// Rows as objects, whose members are called as the headers.
void ScriviOggetti(const TabellaTesti& tabella, QTextStream& uscita) {
    ScrittoreJson json(uscita);
    json.ApreArray();
    for (const QStringList& riga : tabella.righe) {
        QMap<QString, QString> membri;
        for (qsizetype i = 0; i < riga.size(); ++i) membri[tabella.intestazioni.at(i)] = riga.at(i);
        ScriviOggetto(membri, json);
    }
    json.ChiudeArray();
}

void ScriviSegnalazioni(const std::vector<Finding>& segnalazioni, QTextStream& uscita) {
    if (segnalazioni.empty()) uscita << u"L'archivio è in ordine.\n"_s;
    for (const Finding& finding : segnalazioni) {
        uscita << u"%1: %2%3\n"_s.arg(Gravita(finding), finding.text,
                                      finding.detail.isEmpty() ? QString() : u" [%1]"_s.arg(finding.detail));
    }
}

TabellaTesti TabellaDelleCopie(const std::vector<CopiaInElenco>& copie) {
    TabellaTesti tabella{
        {u"Numero"_s, u"Data"_s, u"Mete"_s, u"Tappe"_s, u"KB"_s, u"Motivo"_s, u"Nome"_s}, {}, {0, 2, 3, 4}};
    const auto numero = [](const std::optional<std::int64_t>& righe) {
        return righe ? QString::number(*righe) : u"?"_s;
    };
    for (const CopiaInElenco& copia : copie) {
        tabella.righe.push_back({QString::number(tabella.righe.size() + 1),
                                 copia.copia.when.toString(u"dd/MM/yyyy HH:mm"_s), numero(copia.mete),
                                 numero(copia.tappe), QString::number((copia.byte + 1023) / 1024), copia.Perche(),
                                 QFileInfo(copia.copia.path).fileName()});
    }
    return tabella;
}

// A table in the format wanted; the text for people is written by `testo`.
void Scrivi(const TabellaTesti& tabella, Formato formato, QTextStream& uscita, const std::function<void()>& testo) {
    if (formato == Formato::Json) return ScriviOggetti(tabella, uscita);
    if (formato == Formato::Tsv) return ScriviTsv(tabella, uscita);
    testo();
}

TabellaTesti TabellaDellaRiparazione(const Repair& riparazione) {
    TabellaTesti tabella{{u"Tabella"_s, u"Salvate"_s, u"DallaCopia"_s, u"Perse"_s}, {}, {}};
    for (const RepairedTable& riparata : riparazione.tables) {
        tabella.righe.push_back({Definition(riparata.table).name, QString::number(riparata.kept),
                                 QString::number(riparata.fromCopy), QString::number(riparata.lost)});
    }
    return tabella;
}

void Ripara(const Richiesta& richiesta, bool conferma, QTextStream& uscita) {
    const Repair riparazione = PrepareRepair(richiesta.cartella);
    Scrivi(TabellaDellaRiparazione(riparazione), richiesta.formato, uscita,
           [&] { uscita << TestoRiparazione(riparazione); });
    if (!conferma) {
        throw Failure(
            u"L'archivio è rimasto com'era, danneggiato. Per mettere al suo posto quello riparato: cronovia "
            "verifica --ripara --conferma"_s);
    }
    const QString daParte = ApplyRepair(richiesta.cartella, riparazione, QDateTime::currentDateTime());
    if (richiesta.formato == Formato::Testo) uscita << TestoRiparata(daParte) << '\n';
}

}  // namespace

void EseguiVerifica(const ApriSessione& /*apri*/, const Richiesta& richiesta, QTextStream& uscita) {
    const bool ripara = richiesta.opzioni.contains(u"ripara"_s);
    const bool conferma = richiesta.opzioni.contains(u"conferma"_s);
    if (conferma && !ripara) throw WrongUsage(u"L'opzione --conferma vale solo con --ripara."_s);
    const std::vector<Finding> segnalazioni = CheckArchive(richiesta.cartella);
    if (ripara && AnyDamage(segnalazioni)) return Ripara(richiesta, conferma, uscita);
    Scrivi(TabellaDelleSegnalazioni(segnalazioni), richiesta.formato, uscita,
           [&] { ScriviSegnalazioni(segnalazioni, uscita); });
    if (!AnyDamage(segnalazioni)) return;
    throw Failure(
        u"L'archivio è danneggiato. «cronovia verifica --ripara» dice che cosa se ne salva, senza cambiarlo."_s);
}

void EseguiCopie(const ApriSessione& /*apri*/, const Richiesta& richiesta, QTextStream& uscita) {
    const TabellaTesti tabella = TabellaDelleCopie(ElencoCopie(richiesta.cartella));
    Scrivi(tabella, richiesta.formato, uscita, [&] {
        if (!tabella.righe.empty()) return ScriviAllineata(tabella, uscita);
        uscita << u"Non c'è ancora nessuna copia: la prima si fa prima di cambiare le mète che ci sono.\n"_s;
    });
}

void EseguiRipristina(const ApriSessione& /*apri*/, const Richiesta& richiesta, QTextStream& uscita) {
    const QString copia = TrovaCopia(richiesta.cartella, richiesta.argomenti.first());
    uscita << CosaCambierebbe(richiesta.cartella, copia);
    if (richiesta.opzioni.contains(u"prova"_s)) return;
    const QString diPrima = RipristinaCopia(richiesta.cartella, copia, QDateTime::currentDateTime());
    uscita << TestoRipristinata(copia, diPrima) << '\n';
}

}  // namespace cronovia
