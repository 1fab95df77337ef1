// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/pagina/aspetto_pagina.h"

#include "schedule/strisce.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kStile =
    uR"(
:root{--carta:#fff;--fondo:#eef1f5;--testo:#1b2430;--tenue:#4c5969;--filo:#cfd6de;--segno:#0b5a8f;--avviso:#8a3b00;
--oggi:#fff3cf;--mare:#d5e6f2;--terra:#f7f4ec}
@media(prefers-color-scheme:dark){:root{--carta:#1b222b;--fondo:#11161c;--testo:#e7ecf2;--tenue:#a9b5c3;--filo:#394552;
--segno:#7fc1f2;--avviso:#ffb27a;--oggi:#3a3218;--mare:#14222e;--terra:#262c31}}
*{box-sizing:border-box}
html{-webkit-text-size-adjust:100%}
body{margin:0;background:var(--fondo);color:var(--testo);font:1rem/1.45 system-ui,"Noto Sans",sans-serif}
header,main,nav,footer{max-width:46rem;margin:0 auto;padding:0 1rem}
header{padding-top:1rem}
h1{margin:0;font-size:1.6rem;line-height:1.2;overflow-wrap:anywhere}
h2{margin:0;font-size:1.15rem;line-height:1.3}
h3{margin:1rem 0 .25rem;font-size:1rem}
p{margin:.3rem 0}
a{color:var(--segno)}
.tenue{color:var(--tenue)}
nav ul{display:flex;flex-wrap:wrap;gap:.4rem;margin:.75rem 0;padding:0;list-style:none}
@media(max-width:40rem){nav{position:sticky;top:0;z-index:1;padding:0;background:var(--fondo)}
nav ul{flex-wrap:nowrap;overflow-x:auto;margin:.4rem 0;padding:.2rem 1rem}nav li{flex:none}.scheda{scroll-margin-top:4.5rem}}
nav a{display:block;min-width:2.75rem;padding:.5rem .6rem;border:1px solid var(--filo);border-radius:.5rem;
background:var(--carta);text-align:center;text-decoration:none;font-size:.9rem}
.scheda{margin:.9rem 0;padding:.9rem 1rem 1rem;border:1px solid var(--filo);border-radius:.75rem;background:var(--carta)}
.oggi{border-color:var(--segno);box-shadow:inset .3rem 0 var(--segno)}
.oggi h2::after{content:" · oggi";color:var(--segno)}
nav a.oggi{background:var(--oggi);box-shadow:none;font-weight:700}
dl{display:grid;grid-template-columns:auto 1fr;gap:.15rem .9rem;margin:.5rem 0}
dt{color:var(--tenue)}
dd{margin:0;overflow-wrap:anywhere}
.striscia{display:block;width:100%;height:1.7rem;margin:.5rem 0 0;border:1px solid var(--filo)}
.assi{display:flex;justify-content:space-between;margin:0;color:var(--tenue);font-size:.75rem}
.mare{fill:var(--mare)}.terra{fill:var(--terra);fill-rule:evenodd;stroke:var(--filo)}
.confine{fill:none;stroke:var(--filo);stroke-dasharray:4 3}
.via{fill:none;stroke:#c65a11;stroke-width:2.5}.pari{stroke:#2f86c6}.traghetto{stroke-dasharray:5 5}
.luogo{fill:var(--testo)}.incerto{fill:var(--carta);stroke:var(--testo)}.notte{fill:#f7d27a;stroke:var(--testo)}
.mappa text{paint-order:stroke;stroke:var(--terra);stroke-width:3px;font:600 11px system-ui,"Noto Sans",sans-serif;fill:var(--testo)}
.mappa{display:block;width:100%;height:auto;margin:.5rem 0}
.avvisi{margin:.4rem 0;padding:0 0 0 1.1rem;color:var(--avviso)}
.ore{margin:.5rem 0 0;padding:0;list-style:none}
.ore>li{display:grid;grid-template-columns:6.4rem 1fr;gap:.1rem .6rem;padding:.45rem 0;border-top:1px solid var(--filo)}
.ore time,.ora{font-variant-numeric:tabular-nums;color:var(--tenue)}
.ore strong{overflow-wrap:anywhere}
.ore p{margin:.1rem 0;overflow-wrap:anywhere}
.voci{margin:.2rem 0;padding:0 0 0 1.1rem}
.voci li{overflow-wrap:anywhere}
.legenda{display:flex;flex-wrap:wrap;gap:.3rem .9rem;margin:.5rem 0;padding:0;list-style:none;font-size:.9rem}
.legenda svg{width:1.6rem;height:.8rem;margin-right:.35rem;vertical-align:-.05rem}
footer{padding-bottom:2rem;font-size:.9rem}
@media print{body{background:#fff;font-size:10pt}nav{display:none}.scheda{break-inside:avoid-page;border-radius:0}
header,main,footer{max-width:none;padding:0}}
)";

constexpr QStringView kProgramma =
    uR"(
"use strict";
(function(){
var d=new Date(),z=function(n){return(n<10?"0":"")+n};
var c=document.querySelector('[data-data="'+d.getFullYear()+"-"+z(d.getMonth()+1)+"-"+z(d.getDate())+'"]');
if(!c)return;
c.classList.add("oggi");
var a=document.querySelector('nav a[href="#'+c.id+'"]');
if(a){a.classList.add("oggi");a.setAttribute("aria-current","date");a.scrollIntoView({inline:"center"})}
if(!location.hash)c.scrollIntoView();
})();
)";

QString Colore(std::uint32_t rgb) { return u'#' + QString::number(rgb, 16).rightJustified(6, u'0'); }

// The strokes within a square of 6.
QStringView Tratti(Trama trama) {
    switch (trama) {
        case Trama::Diagonali:
            return u"M-1 1L1-1M0 6L6 0M5 7L7 5";
        case Trama::Controdiagonali:
            return u"M-1 5L1 7M0 0L6 6M5-1L7 1";
        case Trama::Incroci:
            return u"M0 0L6 6M0 6L6 0";
        case Trama::Punti:
            return u"M2 2h1M5 5h1";
        case Trama::Orizzontali:
            return u"M0 2h6M0 5h6";
        case Trama::Verticali:
            return u"M2 0v6M5 0v6";
        case Trama::Piena:
            break;
    }
    return {};
}

}  // namespace

QString StilePagina() { return kStile.trimmed().toString(); }

QString ProgrammaPagina() { return kProgramma.trimmed().toString(); }

QString TramePagina() {
    QString trame = u"<svg width=\"0\" height=\"0\" aria-hidden=\"true\" style=\"position:absolute\"><defs>\n"_s;
    for (int i = 0; i < kGeneriPezzo; ++i) {
        const AspettoPezzo& aspetto = Aspetto(static_cast<GenerePezzo>(i));
        trame +=
            u"<pattern id=\"t%1\" width=\"6\" height=\"6\" patternUnits=\"userSpaceOnUse\">"
            "<rect width=\"6\" height=\"6\" fill=\"%2\"/><path d=\"%3\" stroke=\"%4\"/></pattern>\n"_s.arg(
                QString::number(i), Colore(aspetto.fondo), Tratti(aspetto.trama).toString(), Colore(aspetto.segno));
    }
    return trame + u"</defs></svg>\n"_s;
}

}  // namespace cronovia
