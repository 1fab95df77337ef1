// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/pagina_manuale.h"

#include "cli/verbi.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Text as it stands: nothing of it is a request, and its hyphens can be copied into a command.
QString TestoRoff(QString testo) {
    testo.replace(u'\\', u"\\e"_s).replace(u'-', u"\\-"_s);
    return testo.startsWith(u'.') || testo.startsWith(u'\'') ? u"\\&"_s + testo : testo;
}

// Lines of the page are short.
QString Paragrafo(const QString& testo) {
    constexpr qsizetype kLarghezza = 58;
    QString pagina;
    QString riga;
    for (const QString& parola : testo.split(u' ', Qt::SkipEmptyParts)) {
        if (!riga.isEmpty() && riga.size() + 1 + parola.size() > kLarghezza) {
            pagina += TestoRoff(riga) + u'\n';
            riga.clear();
        }
        riga += riga.isEmpty() ? parola : u' ' + parola;
    }
    return pagina + TestoRoff(riga) + u'\n';
}

QString Grassetto(const QString& testo) { return u"\\fB"_s + TestoRoff(testo) + u"\\fR"_s; }

QString Corsivo(const QString& testo) {
    return testo.isEmpty() ? QString() : u" \\fI"_s + TestoRoff(testo) + u"\\fR"_s;
}

QString Voce(const QString& intestazione, const QString& descrizione) {
    return u".TP\n"_s + intestazione + u'\n' + Paragrafo(descrizione);
}

QString Titolo(const QString& titolo) { return u".SH "_s + titolo + u'\n'; }

QString PaginaDelVerbo(const Verbo& verbo) {
    QString pagina = Voce(Grassetto(verbo.nome) + Corsivo(verbo.argomenti), verbo.descrizione);
    if (verbo.opzioni.empty() && verbo.dati.empty()) return pagina;
    pagina += u".RS\n"_s;
    for (const Opzione& opzione : verbo.opzioni) {
        pagina += Voce(Grassetto(u"--"_s + opzione.nome) + Corsivo(opzione.valore),
                       opzione.descrizione + (opzione.obbligatoria ? u" Ci vuole sempre."_s : QString()));
    }
    for (const DatoDetto& dato : verbo.dati) pagina += Voce(Grassetto(dato.nomi), dato.descrizione);
    return pagina + u".RE\n"_s;
}

// Those that answer in the format wanted, by name.
QString ConFormato() {
    QStringList nomi;
    for (const Verbo& verbo : Verbi()) {
        if (verbo.conFormato) nomi += verbo.nome;
    }
    return nomi.join(u", "_s);
}

QString Opzioni() {
    return Voce(Grassetto(u"--cartella"_s) + Corsivo(u"DIR"_s), u"La cartella dei dati."_s) +
           Voce(Grassetto(u"--formato testo"_s) + u"|"_s + Grassetto(u"tsv"_s) + u"|"_s + Grassetto(u"json"_s),
                u"Il formato dei risultati di questi verbi: %1."_s.arg(ConFormato())) +
           Voce(Grassetto(u"--help"_s), u"L'aiuto; dopo un verbo, quello del verbo."_s) +
           Voce(Grassetto(u"--version"_s), u"La versione."_s);
}

QString Luoghi() {
    return Voce(Corsivo(u"~/.local/share/Cronovia"_s).trimmed(),
                u"La cartella dei dati, se --cartella non ne indica un'altra e accanto al programma non c'è un file di "
                "nome «portatile»: con quello i dati stanno nella cartella del programma."_s) +
           Voce(Corsivo(u"VandroCronovia.mdb"_s).trimmed(), u"Lì dentro, l'archivio dei viaggi e della guida."_s) +
           Voce(Corsivo(u"Copie"_s).trimmed(), u"Lì dentro, le copie che Cronovia tiene da sola."_s);
}

QString Codici() {
    return Voce(u"0"_s, u"Fatto."_s) +
           Voce(u"1"_s, u"Rifiutato o non riuscito: una frase dice perché, e niente è cambiato."_s) +
           Voce(u"2"_s, u"La riga di comando non si capisce."_s);
}

QString Esempi() {
    QString righe;
    for (const QString& riga :
         {u"cronovia elenca"_s, u"cronovia calcola 000003 --giorni 10"_s, u"cronovia stampa 000001 --pdf viaggio.pdf"_s,
          u"cronovia --cartella /tmp/prova importa viaggi.iei"_s}) {
        righe += TestoRoff(riga) + u'\n';
    }
    return u".nf\n"_s + righe + u".fi\n"_s;
}

}  // namespace

QString PaginaDelManuale(const QString& versione, const QString& data) {
    QString pagina =
        u".\\\" SPDX-License-Identifier: GPL-3.0-or-later\n.TH CRONOVIA 1 \"%1\" \"Cronovia %2\" "
        "\"Comandi dell'utente\"\n"_s.arg(data, versione) +
        Titolo(u"NOME"_s) + u"cronovia \\- l'orario dei viaggi in camper\n"_s + Titolo(u"SINTASSI"_s);
    const QString inizio = u".B cronovia\n[\\fB\\-\\-cartella\\fR \\fIDIR\\fR]\n"_s;
    pagina += inizio + u"[\\fIFILE.iei\\fR]\n.br\n"_s + inizio + u"\\fIVERBO\\fR [\\fIargomenti\\fR]\n"_s;
    pagina += Titolo(u"DESCRIZIONE"_s) +
              Paragrafo(
                  u"Cronovia calcola l'orario di un viaggio in camper: a che ora si arriva dove, con pasti, "
                  "notti, riposi, traghetti e visite, e fino a quando si può proseguire. Senza verbo apre la "
                  "finestra, con un file di scambio ne apre l'import; con un verbo lavora sul terminale."_s);
    pagina += Titolo(u"VERBI"_s);
    for (const Verbo& verbo : Verbi()) pagina += PaginaDelVerbo(verbo);
    return pagina + Titolo(u"OPZIONI"_s) + Opzioni() + Titolo(u"FILE"_s) + Luoghi() +
           Titolo(u"\"CODICI DI USCITA\""_s) + Codici() + Titolo(u"ESEMPI"_s) + Esempi();
}

}  // namespace cronovia
