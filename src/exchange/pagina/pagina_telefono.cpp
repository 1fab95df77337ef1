// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/pagina/pagina_telefono.h"

#include <QCryptographicHash>

#include "calendar/durata.h"
#include "calendar/testo.h"
#include "exchange/pagina/aspetto_pagina.h"
#include "exchange/pagina/mappa_svg.h"
#include "exchange/pagina/schede_giorni.h"
#include "interaction/failure.h"
#include "schedule/testi_giornata.h"
#include "schedule/testi_ore.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString GiornoEData(NumeroGiorno giorno) { return GiornoSettimana(giorno).toLower() + u' ' + TestoData(giorno); }

QString TitoloPagina(const Meta& meta) {
    return meta.localita + (meta.nazione.isEmpty() ? QString() : u" ("_s + meta.nazione + u')');
}

// Nothing of the page may come from elsewhere, and no other program may run on it than its own.
void ScriviTesta(const Meta& meta, ScrittoreHtml& html) {
    const QByteArray impronta =
        QCryptographicHash::hash(ProgrammaPagina().toUtf8(), QCryptographicHash::Sha256).toBase64();
    html.Grezzo(u"<!DOCTYPE html>\n");
    html.Apre(u"html"_s, {{u"lang", u"it"_s}});
    html.Apre(u"head"_s);
    html.Vuoto(u"meta"_s, {{u"charset", u"utf-8"_s}});
    html.Vuoto(u"meta"_s, {{u"http-equiv", u"Content-Security-Policy"_s},
                           {u"content", u"default-src 'none'; style-src 'unsafe-inline'; script-src 'sha256-%1'"_s.arg(
                                            QString::fromLatin1(impronta))}});
    html.Vuoto(u"meta"_s, {{u"name", u"viewport"_s}, {u"content", u"width=device-width, initial-scale=1"_s}});
    html.Vuoto(u"meta"_s, {{u"name", u"color-scheme"_s}, {u"content", u"light dark"_s}});
    html.Vuoto(u"meta"_s, {{u"name", u"format-detection"_s}, {u"content", u"telephone=no"_s}});
    html.Elemento(u"title"_s, TitoloPagina(meta) + u" – giornate del viaggio"_s);
    html.Apre(u"style"_s);
    html.Grezzo(StilePagina());
    html.Chiude();
    html.Chiude();
}

void ScriviRiassunto(const DatiPagina& dati, const std::vector<Giornata>& giornate, const MappaViaggio& mappa,
                     ScrittoreHtml& html) {
    const auto& [meta, cronovia, tappe, posizioni, coste] = dati;
    const auto voce = [&](const QString& nome, const QString& valore) {
        if (valore.isEmpty()) return;
        html.Elemento(u"dt"_s, nome);
        html.Elemento(u"dd"_s, valore);
    };
    html.Apre(u"section"_s, {{u"class", u"scheda"_s}, {u"id", u"viaggio"_s}});
    html.Elemento(u"h2"_s, u"Il viaggio"_s);
    html.Apre(u"dl"_s);
    voce(u"Partenza"_s, GiornoEData(*meta.dataInizio) + u" alle "_s + TestoOreBrevi(meta.oraInizio) + u" da "_s +
                            giornate.front().risveglio);
    if (const auto& fine = cronovia.fine) {
        voce(u"Fine"_s, GiornoEData(fine->data) + u" alle "_s + TestoOreBrevi(fine->ora));
    }
    if (cronovia.scadenza) voce(u"Rientro"_s, Testo(*cronovia.scadenza, cronovia));
    voce(u"Giorni"_s, QString::number(giornate.size()));
    voce(u"Chilometri"_s, RaggruppaNonZero(cronovia.totali.km[kTuttiITipi]));
    voce(u"Ore di guida"_s, TestoOreBrevi(cronovia.totali.tempo[kTuttiITipi]));
    if (cronovia.totali.traghetti > 0) voce(u"Traghetti"_s, QString::number(cronovia.totali.traghetti));
    html.Chiude();
    ScriviMappa(mappa, coste, html);
    html.Chiude();
}

void ScriviIndice(const std::vector<Giornata>& giornate, ScrittoreHtml& html) {
    html.Apre(u"nav"_s, {{u"aria-label", u"Giorni"_s}});
    html.Apre(u"ul"_s);
    for (const Giornata& giornata : giornate) {
        html.Apre(u"li"_s);
        html.Elemento(u"a"_s, GiornoSettimana(giornata.data).toLower() + u' ' + TestoData(giornata.data).left(5),
                      {{u"href", u'#' + AncoraGiornata(giornata)}});
        html.Chiude();
    }
    html.Chiude();
    html.Chiude();
}

// Lunch and dinner look alike.
void ScriviLegenda(ScrittoreHtml& html) {
    html.Apre(u"section"_s, {{u"class", u"scheda"_s}});
    html.Elemento(u"h2"_s, u"Che cosa dicono le strisce"_s);
    html.Apre(u"ul"_s, {{u"class", u"legenda"_s}});
    for (int i = 0; i < kGeneriPezzo; ++i) {
        const auto genere = static_cast<GenerePezzo>(i);
        if (genere == GenerePezzo::Cena) continue;
        html.Apre(u"li"_s);
        html.Grezzo(
            u"<svg viewBox=\"0 0 24 12\" aria-hidden=\"true\"><rect width=\"24\" height=\"12\" "
            "fill=\"url(#t%1)\"></rect></svg>"_s.arg(i));
        html.Testo(genere == GenerePezzo::Pranzo ? u"pasto"_s : Aspetto(genere).nome.toString());
        html.Chiude();
    }
    html.Chiude();
    html.Chiude();
}

}  // namespace

QByteArray PaginaTelefono(const DatiPagina& dati) {
    const Meta& meta = dati.meta;
    const std::vector<Giornata> giornate =
        meta.dataInizio ? Giornate(dati.cronovia, *meta.dataInizio) : std::vector<Giornata>();
    if (giornate.empty()) throw Failure(u"La mèta non ha giornate da scrivere: mancano le tappe."_s);
    const MappaViaggio mappa = dati.posizioni.empty() ? MappaViaggio()
                                                      : ComponiMappa(dati.tappe, dati.posizioni, giornate,
                                                                     {dati.cronovia, giornate, dati.tappe});
    ScrittoreHtml html;
    ScriviTesta(meta, html);
    html.Apre(u"body"_s);
    html.Grezzo(TramePagina());
    html.Apre(u"header"_s);
    html.Elemento(u"h1"_s, TitoloPagina(meta));
    html.Chiude();
    ScriviIndice(giornate, html);
    html.Apre(u"main"_s);
    ScriviRiassunto(dati, giornate, mappa, html);
    ScriviSchede(dati, giornate, mappa, html);
    ScriviLegenda(html);
    html.Chiude();
    html.Apre(u"footer"_s);
    html.Elemento(u"p"_s, u"Preparata con Cronovia. Le ore sono quelle del luogo."_s, {{u"class", u"tenue"_s}});
    html.Chiude();
    html.Apre(u"script"_s);
    html.Grezzo(ProgrammaPagina());
    html.Chiude();
    html.Chiude();
    html.Chiude();
    return html.Html().toUtf8();
}

}  // namespace cronovia
