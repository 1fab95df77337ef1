// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comandi_aiuto.h"

#include <QCoreApplication>
#include <QDir>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The headings of docs/manuale.md.
constexpr QStringView kCapitoloInizio = u"Il primo viaggio in cinque minuti";
constexpr QStringView kCapitoloMeta = u"La mèta e i suoi parametri";
constexpr QStringView kCapitoloTappe = u"Inserire le tappe";
constexpr QStringView kCapitoloCronovia = u"Leggere la cronovia";
constexpr QStringView kCapitoloStampa = u"Stampare";
constexpr QStringView kCapitoloGuida = u"La guida delle città";
constexpr QStringView kCapitoloCopia = u"Copiare da altre mète";
constexpr QStringView kCapitoloScambio = u"Scambiare viaggi con altri";
constexpr QStringView kCapitoloTasti = u"I tasti";

struct ArgomentoDelloSchermo {
    QStringView operator()(const schermata::Viaggio& viaggio) const {
        return viaggio.fase == schermata::Viaggio::Fase::Vuota ? kCapitoloInizio : kCapitoloMeta;
    }
    QStringView operator()(const schermata::ElencoMete& /*elenco*/) const { return kCapitoloMeta; }
    QStringView operator()(const schermata::Inserimento& /*inserimento*/) const { return kCapitoloTappe; }
    QStringView operator()(const schermata::Cronovia& /*cronovia*/) const { return kCapitoloCronovia; }
    QStringView operator()(const schermata::Stampa& /*stampa*/) const { return kCapitoloStampa; }
    QStringView operator()(const schermata::Guida& guida) const {
        return guida.stampa ? kCapitoloStampa : kCapitoloGuida;
    }
    QStringView operator()(const schermata::Copia& /*copia*/) const { return kCapitoloCopia; }
    QStringView operator()(const schermata::Scambio& /*scambio*/) const { return kCapitoloScambio; }
};

}  // namespace

QString ArgomentoDelManuale(const Schermata& schermata) {
    return std::visit(ArgomentoDelloSchermo(), schermata).toString();
}

QString ArgomentoDeiTasti() { return kCapitoloTasti.toString(); }

QString Riconoscimenti() {
    return u"Cronovia è software libero: licenza GNU GPL, versione 3 o successiva, senza alcuna garanzia.\n\n"
           "Usa Qt (GNU LGPL 3), SQLite (pubblico dominio), SQLiteCpp (MIT) e i caratteri Liberation (SIL OFL 1.1).\n\n"
           "I nomi e le posizioni dei luoghi sono di GeoNames (CC BY 4.0), le coste e i confini di Natural Earth "
           "(pubblico dominio)."_s;
}

namespace comandi {

void Manuale(Postazione& p) { p.volti.manuale(ArgomentoDelManuale(p.schermata)); }

void Tasti(Postazione& p) { p.volti.manuale(ArgomentoDeiTasti()); }

void Preferenze(Postazione& p) { p.volti.preferenze(); }

void Informazioni(Postazione& p) {
    p.Mostra(
        u"Cronovia %1\nL'orario dei viaggi in camper\n\nI tuoi dati sono in:\n%2\n\n%3"_s.arg(
            QCoreApplication::applicationVersion(), QDir::toNativeSeparators(p.sessione.Cartella()), Riconoscimenti()),
        u"Informazioni su Cronovia"_s, Icon::Programma);
}

}  // namespace comandi

}  // namespace cronovia
