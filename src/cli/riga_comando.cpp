// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/riga_comando.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QScopeGuard>
#include <algorithm>
#include <utility>

#include "app/cartella_dati.h"
#include "calendar/testo.h"
#include "cli/simile.h"
#include "interaction/failure.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr int kFatto = 0;
constexpr int kRifiutato = 1;
constexpr int kUsoErrato = 2;

QStringList NomiDeiVerbi() {
    QStringList nomi;
    for (const Verbo& verbo : Verbi()) nomi += verbo.nome;
    return nomi;
}

const Verbo* TrovaVerbo(const QString& nome) {
    const auto& verbi = Verbi();
    const auto trovato = std::find_if(verbi.begin(), verbi.end(), [&](const Verbo& v) { return v.nome == nome; });
    return trovato == verbi.end() ? nullptr : &*trovato;
}

QString ConValore(const Opzione& opzione) {
    return u"--"_s + opzione.nome + (opzione.valore.isEmpty() ? QString() : u' ' + opzione.valore);
}

QString SenzaValore(const Opzione& opzione) {
    return u"All'opzione --%1 manca il suo valore: %2."_s.arg(opzione.nome, ConValore(opzione));
}

// A verb with all that it cannot do without.
QString UsoMinimo(const Verbo& verbo) {
    QString uso = verbo.nome + u' ' + verbo.argomenti;
    for (const Opzione& opzione : verbo.opzioni) {
        if (opzione.obbligatoria) uso += u' ' + ConValore(opzione);
    }
    return uso.trimmed();
}

void ScriviAiuto(QTextStream& uscita) {
    uscita << u"Cronovia, l'orario dei viaggi in camper.\n\n"
              "Uso: cronovia [--cartella DIR]                     apre la finestra\n"
              "     cronovia [--cartella DIR] FILE.iei            la apre e importa dal file di scambio\n"
              "     cronovia [--cartella DIR] VERBO [argomenti]   lavora da riga di comando\n\n"_s;
    TabellaTesti verbi{{QString(), QString()}, {}, {}};
    for (const Verbo& verbo : Verbi()) {
        verbi.righe.push_back({u"  "_s + UsoMinimo(verbo), verbo.descrizione});
    }
    const std::vector<int> larghezze = LarghezzeColonne(verbi);
    for (const QStringList& riga : verbi.righe) uscita << RigaAllineata(riga, larghezze, {}) << '\n';
    uscita << u"\n  --cartella DIR           Cartella dei dati; altrimenti quella dell'utente.\n"
              "  --formato F              Formato dei risultati: testo, tsv o json.\n"
              "  --help                   Questo aiuto; dopo un verbo, l'aiuto del verbo.\n"
              "  --version                La versione.\n"_s;
}

void ScriviAiutoDelVerbo(const Verbo& verbo, QTextStream& uscita) {
    uscita << u"Uso: cronovia [--cartella DIR] %1"_s.arg(UsoMinimo(verbo));
    for (const Opzione& opzione : verbo.opzioni) {
        if (!opzione.obbligatoria) uscita << u" [%1]"_s.arg(ConValore(opzione));
    }
    if (verbo.conFormato) uscita << u" [--formato testo|tsv|json]"_s;
    uscita << u"\n\n"_s << verbo.descrizione << '\n';
    for (const Opzione& opzione : verbo.opzioni) {
        uscita << u"  %1\n      %2\n"_s.arg(ConValore(opzione), opzione.descrizione);
    }
    if (verbo.dati.empty()) return;
    uscita << u"\nI nomi, con maiuscole o minuscole:\n"_s;
    for (const DatoDetto& dato : verbo.dati) uscita << u"  %1\n      %2\n"_s.arg(dato.nomi, dato.descrizione);
}

Formato LeggiFormato(const QString& nome) {
    if (nome == "testo"_L1) return Formato::Testo;
    if (nome == "tsv"_L1) return Formato::Tsv;
    if (nome == "json"_L1) return Formato::Json;
    throw WrongUsage(u"Il formato «%1» non esiste: testo, tsv o json."_s.arg(nome));
}

// Those that any line may have, for what is said of a wrong one.
std::vector<Opzione> OpzioniComuni(bool conFormato) {
    std::vector<Opzione> opzioni = {{u"cartella"_s, u"DIR"_s, {}}, {u"help"_s, {}, {}}};
    if (conFormato) opzioni.push_back({u"formato"_s, u"testo|tsv|json"_s, {}});
    return opzioni;
}

void AggiungiOpzioniComuni(QCommandLineParser& parser) {
    parser.addOption({u"cartella"_s, {}, u"DIR"_s});
    parser.addOption({{u"h"_s, u"help"_s}, {}});
}

// Bytes that are no text become replacement characters: a folder of that name would be another one.
QString LeggiCartella(const QCommandLineParser& parser) {
    if (!parser.isSet(u"cartella"_s)) return {};
    QString cartella = parser.value(u"cartella"_s);
    if (cartella.isEmpty()) throw WrongUsage(u"All'opzione --cartella manca il nome di una cartella."_s);
    if (cartella.contains(QChar::ReplacementCharacter) || HaCaratteriDiControllo(cartella)) {
        throw WrongUsage(u"Il nome dato all'opzione --cartella non è un testo valido."_s);
    }
    return cartella;
}

// As the person wrote it: of letters behind one dash the parser knows only the first.
QString OpzioneScritta(const QStringList& riga, const QString& nome) {
    for (const QString& parola : riga) {
        if (parola.section(u'=', 0, 0) == u"--"_s + nome) return u"--"_s + nome;
        if (!parola.startsWith("--"_L1) && parola.startsWith(u'-' + nome)) return parola;
    }
    return u"--"_s + nome;
}

QString OpzioneSconosciuta(const QStringList& riga, const QString& nome, const QStringList& note) {
    const QString scritta = OpzioneScritta(riga, nome);
    const QString frase = u"Opzione sconosciuta: «%1»."_s.arg(scritta);
    if (!scritta.startsWith("--"_L1)) return frase + u" Se non è un'opzione, scrivila dopo «--»."_s;
    const std::optional<QString> simile = PiuSimile(nome, note);
    return simile ? frase + u" Forse «--%1»?"_s.arg(*simile) : frase;
}

// With the options that the line may have.
void Analizza(QCommandLineParser& parser, const QStringList& riga, const std::vector<Opzione>& opzioni) {
    if (parser.parse(riga)) return;
    QStringList note;
    for (const Opzione& opzione : opzioni) note += opzione.nome;
    const QStringList sconosciute = parser.unknownOptionNames();
    if (!sconosciute.isEmpty()) throw WrongUsage(OpzioneSconosciuta(riga, sconosciute.first(), note));
    for (const Opzione& opzione : opzioni) {
        const QString scritta = u"--"_s + opzione.nome;
        const bool conValore = std::any_of(riga.begin(), riga.end(),
                                           [&](const QString& parola) { return parola.startsWith(scritta + u'='); });
        if (conValore && opzione.valore.isEmpty())
            throw WrongUsage(u"L'opzione %1 non vuole un valore."_s.arg(scritta));
        if (riga.last() == scritta && !opzione.valore.isEmpty()) throw WrongUsage(SenzaValore(opzione));
    }
    throw WrongUsage(u"A un'opzione manca il suo valore, o ne ha uno che non vuole."_s);
}

void RifiutaTestiNonValidi(const QStringList& testi) {
    for (const QString& testo : testi) {
        if (testo.contains(QChar::ReplacementCharacter)) {
            throw WrongUsage(u"«%1» non è un testo valido: alcuni suoi caratteri non sono in UTF-8."_s.arg(testo));
        }
    }
}

// The value of an option; said twice, nobody knows which one is meant.
QString ValoreUnico(const QCommandLineParser& parser, const QString& nome) {
    const QStringList valori = parser.values(nome);
    if (valori.size() > 1) throw WrongUsage(u"L'opzione --%1 è detta due volte."_s.arg(nome));
    RifiutaTestiNonValidi(valori);
    return parser.value(nome);
}

Richiesta LeggiRichiesta(const Verbo& verbo, const QCommandLineParser& parser) {
    Richiesta richiesta;
    richiesta.argomenti = parser.positionalArguments();
    const auto numero = static_cast<int>(richiesta.argomenti.size());
    RifiutaTestiNonValidi(richiesta.argomenti);
    if (numero < verbo.minimoArgomenti) {
        throw WrongUsage(u"Al verbo «%1» mancano degli argomenti: %2."_s.arg(verbo.nome, verbo.argomenti));
    }
    if (richiesta.argomenti.contains(QString())) {
        throw WrongUsage(u"Al verbo «%1» è dato un argomento vuoto: %2."_s.arg(verbo.nome, verbo.argomenti));
    }
    if (verbo.massimoArgomenti >= 0 && numero > verbo.massimoArgomenti) {
        throw WrongUsage(u"Il verbo «%1» non vuole l'argomento «%2»."_s.arg(
            verbo.nome, richiesta.argomenti.at(verbo.massimoArgomenti)));
    }
    for (const Opzione& opzione : verbo.opzioni) {
        if (parser.isSet(opzione.nome)) richiesta.opzioni.insert(opzione.nome, ValoreUnico(parser, opzione.nome));
        if (!opzione.valore.isEmpty() && parser.isSet(opzione.nome) && parser.value(opzione.nome).isEmpty()) {
            throw WrongUsage(SenzaValore(opzione));
        }
        if (opzione.obbligatoria && richiesta.opzioni.value(opzione.nome).isEmpty()) {
            throw WrongUsage(u"Al verbo «%1» manca l'opzione %2."_s.arg(verbo.nome, ConValore(opzione)));
        }
    }
    if (verbo.conFormato) richiesta.formato = LeggiFormato(ValoreUnico(parser, u"formato"_s));
    return richiesta;
}

// A line taken apart.
struct Comando {
    enum class Genere { Versione, Aiuto, AiutoDelVerbo, Verbo };
    Genere genere = Genere::Verbo;
    const Verbo* verbo = nullptr;  // of the last two kinds
    QString cartella;
    Richiesta richiesta;
};

// A coordinate west or south is no option: with the sign of mathematics it is none to the parser either.
QStringList ConCoordinate(QStringList riga) {
    for (QString& parola : riga) {
        if (parola.size() > 1 && parola.startsWith(u'-') && Cifra(parola[1])) parola[0] = QChar(0x2212);
    }
    return riga;
}

Comando LeggiVerbo(const Verbo& verbo, const QString& cartella, const QStringList& riga) {
    QCommandLineParser parser;
    AggiungiOpzioniComuni(parser);
    std::vector<Opzione> note = OpzioniComuni(verbo.conFormato);
    if (verbo.conFormato) parser.addOption({u"formato"_s, {}, u"F"_s, u"testo"_s});
    for (const Opzione& opzione : verbo.opzioni) parser.addOption({opzione.nome, {}, opzione.valore});
    note.insert(note.begin(), verbo.opzioni.begin(), verbo.opzioni.end());
    Analizza(parser, verbo.conCoordinate ? ConCoordinate(riga) : riga, note);
    if (parser.isSet(u"help"_s)) return {Comando::Genere::AiutoDelVerbo, &verbo, {}, {}};
    const QString dove = parser.isSet(u"cartella"_s) ? LeggiCartella(parser) : cartella;
    return {Comando::Genere::Verbo, &verbo, dove, LeggiRichiesta(verbo, parser)};
}

QString VerboSconosciuto(const QString& nome) {
    const std::optional<QString> simile = PiuSimile(nome, NomiDeiVerbi());
    return u"Il verbo «%1» non esiste%2."_s.arg(nome, simile ? u": forse «%1»"_s.arg(*simile) : QString());
}

// Where a person can read on, of the verb if the line has one.
QString DoveAiuto(const QStringList& riga) {
    QCommandLineParser parser;
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    AggiungiOpzioniComuni(parser);
    parser.addOption({u"formato"_s, {}, u"F"_s});
    parser.parse(riga);
    const Verbo* verbo = TrovaVerbo(parser.positionalArguments().value(0));
    return u" L'aiuto: cronovia %1--help\n"_s.arg(verbo == nullptr ? QString() : verbo->nome + u' ');
}

Comando Leggi(const QStringList& riga) {
    QCommandLineParser parser;
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    AggiungiOpzioniComuni(parser);
    parser.addOption({{u"v"_s, u"version"_s}, {}});
    parser.addOption({u"formato"_s, {}, u"F"_s});
    std::vector<Opzione> note = OpzioniComuni(true);
    note.push_back({u"version"_s, {}, {}});
    Analizza(parser, riga, note);
    QStringList resto = parser.positionalArguments();
    if (parser.isSet(u"version"_s)) return {Comando::Genere::Versione, nullptr, {}, {}};
    if (parser.isSet(u"help"_s) && resto.isEmpty()) return {Comando::Genere::Aiuto, nullptr, {}, {}};
    const QString cartella = LeggiCartella(parser);
    if (resto.isEmpty()) throw WrongUsage(u"Manca il verbo."_s);
    const Verbo* verbo = TrovaVerbo(resto.first());
    if (verbo == nullptr && QFileInfo(resto.first()).isFile()) {
        throw WrongUsage(u"Il file «%1» non è un file di viaggi: la finestra apre quelli che finiscono in .iei."_s.arg(
            resto.first()));
    }
    if (verbo == nullptr) throw WrongUsage(VerboSconosciuto(resto.first()));
    if (parser.isSet(u"help"_s)) resto += u"--help"_s;
    if (parser.isSet(u"formato"_s)) resto.insert(1, u"--formato="_s + parser.value(u"formato"_s));
    return LeggiVerbo(*verbo, cartella, resto);
}

// What a verb leaves to be told besides its answer.
struct Avvisi {
    QStringList frasi;
    QString danno;          // of the archive; the answer may be incomplete then
    QString cartellaNuova;  // for who was refused something that an older folder might have had
};

void EseguiVerbo(const Comando& comando, QTextStream& uscita, Avvisi& avvisi) {
    // Who mistypes a folder would look for trips in a new one.
    const bool cartellaNuova = !comando.cartella.isEmpty() && !QFileInfo::exists(comando.richiesta.cartella);
    const auto apri = [&] {
        Custode custode;
        custode.avvisa = [&](const QString& frase) { avvisi.frasi += frase; };
        Sessione sessione(comando.richiesta.cartella, std::move(custode));
        avvisi.danno = sessione.Archivio().Damage();
        if (!cartellaNuova) return sessione;
        avvisi.cartellaNuova =
            u"La cartella %1 non c'era: è nuova, con un archivio vuoto."_s.arg(comando.richiesta.cartella);
        if (comando.verbo->minimoArgomenti == 0) avvisi.frasi += avvisi.cartellaNuova;  // asks what there is
        return sessione;
    };
    comando.verbo->esegui(apri, comando.richiesta, uscita);
}

void Esegui(const Comando& comando, QTextStream& uscita, Avvisi& avvisi) {
    switch (comando.genere) {
        case Comando::Genere::Versione:
            uscita << u"cronovia %1\n"_s.arg(QLatin1StringView(CRONOVIA_VERSION));
            break;
        case Comando::Genere::Aiuto:
            ScriviAiuto(uscita);
            break;
        case Comando::Genere::AiutoDelVerbo:
            ScriviAiutoDelVerbo(*comando.verbo, uscita);
            break;
        case Comando::Genere::Verbo:
            EseguiVerbo(comando, uscita, avvisi);
            break;
    }
}

// Whatever names hold, a terminal obeys nothing of it.
void EseguiSulTerminale(const Comando& comando, bool colori, QTextStream& uscita, Avvisi& avvisi) {
    QString testo;
    QTextStream raccolta(&testo);
    const auto consegna = qScopeGuard([&] {  // what was said before a refusal too
        raccolta.flush();
        uscita << ConRilievi(VisibileARighe(testo), colori);
    });
    Esegui(comando, raccolta, avvisi);
}

}  // namespace

std::optional<RichiestaFinestra> RichiestaDellaFinestra(const QStringList& riga) {
    QCommandLineParser parser;
    AggiungiOpzioniComuni(parser);
    if (!parser.parse(riga) || parser.isSet(u"help"_s)) return std::nullopt;
    const QStringList argomenti = parser.positionalArguments();
    const bool soloFile = argomenti.size() == 1 && argomenti.first().endsWith(".iei"_L1, Qt::CaseInsensitive);
    if (!argomenti.isEmpty() && !soloFile) return std::nullopt;
    try {
        return RichiestaFinestra{LeggiCartella(parser), argomenti.value(0)};
    } catch (const WrongUsage&) {
        return std::nullopt;  // to be told in words
    }
}

bool VuoleCaratteri(const QStringList& riga) {
    try {
        const Comando comando = Leggi(riga);
        return comando.genere == Comando::Genere::Verbo && comando.richiesta.opzioni.contains(u"pdf"_s);
    } catch (const WrongUsage&) {
        return false;
    }
}

int EseguiRigaDiComando(const QStringList& riga, const Stampe& stampe, const Terminale& terminale, QTextStream& uscita,
                        QTextStream& errori) {
    Avvisi avvisi;
    AvanzamentoSulTerminale avanzamento(errori, terminale.errori);
    const auto errore = [&](const QString& frase) {
        avanzamento.Togli();
        errori << ConRilievi(Errore(Visibile(frase)), terminale.errori && terminale.colori);
    };
    try {
        Comando comando = Leggi(riga);
        comando.richiesta.stampe = stampe;
        comando.richiesta.avanzamento = &avanzamento;
        comando.richiesta.chiede = [&](const QString& domanda) { return Chiedi(terminale, domanda, errori); };
        comando.richiesta.cartella = CartellaDati(LuoghiDellaPiattaforma(comando.cartella));
        if (comando.richiesta.formato == Formato::Testo) {
            EseguiSulTerminale(comando, terminale.uscita && terminale.colori, uscita, avvisi);
        } else {
            Esegui(comando, uscita, avvisi);
        }
        avanzamento.Togli();
        uscita.flush();
        if (uscita.status() != QTextStream::Ok) {
            throw Failure(
                u"Il risultato non si può scrivere: il disco è pieno, o nessuno lo legge. Ciò che il verbo doveva "
                "cambiare è cambiato."_s);
        }
        for (const QString& frase : avvisi.frasi) errori << Visibile(frase) << '\n';
        if (!avvisi.danno.isEmpty()) throw Failure(avvisi.danno);
        return kFatto;
    } catch (const WrongUsage& errato) {
        errore(errato.Message());
        errori << DoveAiuto(riga);
        return kUsoErrato;
    } catch (const Failure& fallito) {
        errore(fallito.Message());
        if (dynamic_cast<const MetaAssente*>(&fallito) != nullptr) errori << u" I codici li dice: cronovia elenca"_s;
        errori << '\n';
        if (!avvisi.cartellaNuova.isEmpty()) errori << Visibile(avvisi.cartellaNuova) << '\n';
        if (!avvisi.danno.isEmpty() && avvisi.danno != fallito.Message()) errori << Visibile(avvisi.danno) << '\n';
        return kRifiutato;
    }
}

}  // namespace cronovia
