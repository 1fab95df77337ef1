// SPDX-License-Identifier: GPL-3.0-or-later
// completamento: what a shell needs to complete verbs, options and files, made from the table of verbs.
#include "cli/verbi.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString FraApici(QString testo) { return u'\'' + testo.replace(u'\'', "'\\''"_L1) + u'\''; }

bool UnFile(const QString& valore) { return valore.contains("FILE"_L1); }

// The options of a verb with those that all have.
std::vector<Opzione> OpzioniDelVerbo(const Verbo& verbo) {
    std::vector<Opzione> opzioni = verbo.opzioni;
    if (verbo.conFormato) opzioni.push_back({u"formato"_s, u"F"_s, u"Formato dei risultati."_s});
    opzioni.push_back({u"help"_s, {}, u"L'aiuto del verbo."_s});
    return opzioni;
}

// The words that can stand behind a verb, when its arguments name them.
QStringList ParoleDelVerbo(const Verbo& verbo) {
    const bool elencate = verbo.argomenti.contains(u'|') && !UnFile(verbo.argomenti);
    return elencate ? verbo.argomenti.split(u'|') : QStringList();
}

// A branch of the choice after "verb option": files behind an option that wants one, nothing behind any other value.
QString RamoDellOpzione(const Verbo& verbo, const Opzione& opzione) {
    if (opzione.valore.isEmpty() || opzione.nome == "formato"_L1) return {};
    return u"        '%1 --%2') %3; return ;;\n"_s.arg(
        verbo.nome, opzione.nome,
        UnFile(opzione.valore) ? u"mapfile -t COMPREPLY < <(compgen -f -- \"$parola\")"_s : u":"_s);
}

QString PerBash() {
    QStringList primi;
    QString conVerbo;
    QString dopoOpzione;
    for (const Verbo& verbo : Verbi()) {
        primi += verbo.nome;
        QStringList parole = ParoleDelVerbo(verbo);
        for (const Opzione& opzione : OpzioniDelVerbo(verbo)) {
            parole += u"--"_s + opzione.nome;
            dopoOpzione += RamoDellOpzione(verbo, opzione);
        }
        conVerbo += u"        %1) parole=%2%3 ;;\n"_s.arg(verbo.nome, FraApici(parole.join(u' ')),
                                                          UnFile(verbo.argomenti) ? u" file=1"_s : QString());
    }
    primi += {u"--cartella"_s, u"--formato"_s, u"--help"_s, u"--version"_s};
    return uR"(_cronovia() {
    local parola=${COMP_WORDS[COMP_CWORD]} prima=${COMP_WORDS[COMP_CWORD-1]} verbo='' parole='' file='' i
    COMPREPLY=()
    for ((i = 1; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
            --cartella|--formato) ((i++)) ;;
            -*) ;;
            *) verbo=${COMP_WORDS[i]}; break ;;
        esac
    done
    case $prima in
        --formato) mapfile -t COMPREPLY < <(compgen -W 'testo tsv json' -- "$parola"); return ;;
        --cartella) mapfile -t COMPREPLY < <(compgen -d -- "$parola"); return ;;
    esac
    case "$verbo $prima" in
%1    esac
    case $verbo in
        '') parole=%2 ;;
%3    esac
    mapfile -t COMPREPLY < <(compgen -W "$parole" -- "$parola"; [ -z "$file" ] || compgen -f -- "$parola")
}
complete -o filenames -F _cronovia cronovia
)"_s.arg(dopoOpzione, FraApici(primi.join(u' ')), conVerbo);
}

QString SenzaParentesi(QString testo) { return testo.replace(u'[', u'(').replace(u']', u')'); }

QString ArgomentoDiZsh(const Opzione& opzione) {
    QString testo = u"--%1[%2]"_s.arg(opzione.nome, SenzaParentesi(opzione.descrizione));
    if (opzione.nome == "formato"_L1) return testo + u":F:(testo tsv json)"_s;
    if (UnFile(opzione.valore)) return testo + u":file:_files"_s;
    return opzione.valore.isEmpty() ? testo : testo + u":valore:"_s;
}

QString PerZsh() {
    QString verbi;
    QString rami;
    for (const Verbo& verbo : Verbi()) {
        verbi += u"            %1\n"_s.arg(FraApici(verbo.nome + u':' + verbo.descrizione));
        const QStringList parole = ParoleDelVerbo(verbo);
        QStringList argomenti = {FraApici(UnFile(verbo.argomenti) ? u"*:file:_files"_s
                                          : parole.isEmpty()      ? u"*::"_s
                                                                  : u"*:parola:(verbo %1)"_s.arg(parole.join(u' ')))};
        for (const Opzione& opzione : OpzioniDelVerbo(verbo)) argomenti += FraApici(ArgomentoDiZsh(opzione));
        rami += u"        %1) _arguments %2 ;;\n"_s.arg(verbo.nome, argomenti.join(u" \\\n            "_s));
    }
    return uR"(#compdef cronovia
_cronovia() {
    local verbo i
    local -a verbi
    for ((i = 2; i < CURRENT; i++)); do
        case ${words[i]} in
            --cartella|--formato) ((i++)) ;;
            -*) ;;
            *) verbo=${words[i]}; break ;;
        esac
    done
    case $verbo in
        '') verbi=(
%1            )
            if [[ ${words[CURRENT-1]} == --cartella ]]; then _directories
            elif [[ ${words[CURRENT-1]} == --formato ]]; then compadd testo tsv json
            else _describe verbo verbi; compadd -- --cartella --formato --help --version
            fi ;;
%2    esac
}
if [[ ${funcstack[1]} == _cronovia ]]; then _cronovia "$@"; else compdef _cronovia cronovia; fi
)"_s.arg(verbi, rami);
}

QString RigaDiFish(const QString& quando, const QString& cosa, const QString& descrizione) {
    QString riga = u"complete -c cronovia"_s;
    if (!quando.isEmpty()) riga += u" -n "_s + FraApici(quando);
    return riga + u' ' + cosa + (descrizione.isEmpty() ? QString() : u" -d "_s + FraApici(descrizione)) + u'\n';
}

QString PerFish() {
    QString testo = u"complete -c cronovia -f\n"_s;
    testo += RigaDiFish({}, u"-l cartella -r -a '(__fish_complete_directories)'"_s, u"Cartella dei dati."_s);
    for (const Verbo& verbo : Verbi()) {
        const QString dopo = u"__fish_seen_subcommand_from "_s + verbo.nome;
        testo += RigaDiFish(u"__fish_use_subcommand"_s, u"-a "_s + verbo.nome, verbo.descrizione);
        if (UnFile(verbo.argomenti)) testo += RigaDiFish(dopo, u"-F"_s, {});
        const QStringList parole = ParoleDelVerbo(verbo);
        if (!parole.isEmpty()) testo += RigaDiFish(dopo, u"-a "_s + FraApici(parole.join(u' ')), {});
        for (const Opzione& opzione : OpzioniDelVerbo(verbo)) {
            QString cosa = u"-l "_s + opzione.nome;
            if (opzione.nome == "formato"_L1)
                cosa += u" -x -a 'testo tsv json'"_s;
            else if (!opzione.valore.isEmpty())
                cosa += UnFile(opzione.valore) ? u" -r -F"_s : u" -x"_s;
            testo += RigaDiFish(dopo, cosa, opzione.descrizione);
        }
    }
    return testo;
}

}  // namespace

void EseguiCompletamento(const ApriSessione& /*apri*/, const Richiesta& richiesta, QTextStream& uscita) {
    const QString& shell = richiesta.argomenti.first();
    if (shell == "bash"_L1) {
        uscita << PerBash();
    } else if (shell == "zsh"_L1) {
        uscita << PerZsh();
    } else if (shell == "fish"_L1) {
        uscita << PerFish();
    } else {
        throw WrongUsage(u"Il completamento c'è per bash, zsh e fish, non per «%1»."_s.arg(shell));
    }
}

}  // namespace cronovia
