// SPDX-License-Identifier: GPL-3.0-or-later
// verifica, copie, ripristina.
#include <QFileInfo>
#include <QMap>

#include "app/copie.h"
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
        json.ApreOggetto();
        for (auto membro = membri.constBegin(); membro != membri.constEnd(); ++membro) {
            json.Nome(membro.key());
            json.Testo(membro.value());
        }
        json.ChiudeOggetto();
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

}  // namespace

void EseguiVerifica(const ApriSessione& /*apri*/, const Richiesta& richiesta, QTextStream& uscita) {
    const std::vector<Finding> segnalazioni = CheckArchive(richiesta.cartella);
    if (richiesta.formato == Formato::Testo) {
        ScriviSegnalazioni(segnalazioni, uscita);
    } else if (richiesta.formato == Formato::Tsv) {
        ScriviTsv(TabellaDelleSegnalazioni(segnalazioni), uscita);
    } else {
        ScriviOggetti(TabellaDelleSegnalazioni(segnalazioni), uscita);
    }
    if (!AnyDamage(segnalazioni)) return;
    throw Failure(
        u"L'archivio è danneggiato. Le copie che ci sono le elenca «cronovia copie», «cronovia ripristina» ne rimette "
        "una al suo posto."_s);
}

void EseguiCopie(const ApriSessione& /*apri*/, const Richiesta& richiesta, QTextStream& uscita) {
    const TabellaTesti tabella = TabellaDelleCopie(ElencoCopie(richiesta.cartella));
    if (richiesta.formato == Formato::Json) {
        ScriviOggetti(tabella, uscita);
    } else if (richiesta.formato == Formato::Tsv) {
        ScriviTsv(tabella, uscita);
    } else if (tabella.righe.empty()) {
        uscita << u"Non c'è ancora nessuna copia: la prima si fa prima di cambiare le mète che ci sono.\n"_s;
    } else {
        ScriviAllineata(tabella, uscita);
    }
}

void EseguiRipristina(const ApriSessione& /*apri*/, const Richiesta& richiesta, QTextStream& uscita) {
    const QString copia = TrovaCopia(richiesta.cartella, richiesta.argomenti.first());
    uscita << CosaCambierebbe(richiesta.cartella, copia);
    if (richiesta.opzioni.contains(u"prova"_s)) return;
    const QString diPrima = RipristinaCopia(richiesta.cartella, copia, QDateTime::currentDateTime());
    uscita << TestoRipristinata(copia, diPrima) << '\n';
}

}  // namespace cronovia
