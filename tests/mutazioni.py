#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Small faults put into the program one at a time, to see whether the tests notice them.

    tests/mutazioni.py --numero 150            that many places, drawn over all rooms of src
    tests/mutazioni.py --stanze store,ui/mappa only those rooms, or folders or files of rooms
    tests/mutazioni.py --seme 7                another draw; the same seed draws the same places
    tests/mutazioni.py --parte 1/2             the first half of the draw; the other in a --cartella of its own
    tests/mutazioni.py --riprova               once more those that survived last time, after tests were added

Works on a copy of the checkout in build/mutazioni, with a build of its own. A fault that does not compile is not counted.
For each other one, the tests that can see its room run until the first that fails; one that needs too long has noticed it
too. The outcome goes to build/mutazioni/esito.json; what survived is listed at the end with its place and change.
"""
import argparse
import json
import os
import random
import re
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from collections import Counter, defaultdict
from pathlib import Path

RADICE = Path(__file__).resolve().parent.parent
MEMORIA = 4 << 30  # bytes that a test may use
DISCO = 1 << 30  # bytes that a test may write into one file

# What stands in the code, what stands there instead.
SCAMBI = [
    (r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "), (r" == ", " != "), (r" != ", " == "),
    (r" \+ ", " - "), (r"(?<=[\w)\]]) - ", " + "), (r" \* ", " / "), (r" / ", " * "), (r" % ", " / "),
    (r" \+= ", " -= "), (r" -= ", " += "), (r"\+\+", "--"),
    (r" && ", " || "), (r" \|\| ", " && "), (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
    (r"\bif \((?!const|auto|!)(.+)\)(?= \{$| return| throw| continue| break|$)", r"if (!(\1))"),
    (r"\bif \(!(\w[\w.>()-]*)\)", r"if (\1)"),
    (r"\? ([^?:;]+?) : ([^?:;,]+?)(?=[;,)])", r"? \2 : \1"),
    (r"(?<![\w.'\"])(\d+)(?![\w.'\"])", lambda m: str(int(m[1]) + 1)),
    (r"\bstd::min\b", "std::max"), (r"\bstd::max\b", "std::min"), (r"\.front\(\)", ".back()"), (r"\.back\(\)", ".front()"),
]
# A whole statement in one line that does something: a call, an assignment, a refusal. No declaration.
ISTRUZIONE = re.compile(r"^(\s+)(?:(?:if \([^;]*\) )?(?:return|continue|break|throw\b[^;]*);|(?!return\b|using\b|throw\b|case\b|"
                        r"default\b|const\b|constexpr\b|static\b|auto\b|delete\b|else\b|break\b|continue\b)"
                        r"[\w:.>*\[\]()-]+(?:\(.*\)|(?: [-+|]?= |\+\+|--).*);)$")


# Looks and speed only, in the rooms that draw: no test should pin them down. Where something is placed counts as such,
# that it is placed does not.
STANZE_CHE_DISEGNANO = ("ui", "print")
ASPETTO = re.compile(r"Margins|Spacing|Stretch|setMinimum|setMaximum|Policy|Alignment|[fF]ont\b|setFont|setFrame|reserve\(|"
                     r"Larghezz|Row\(|setColumnWidth|resize\(|Colors\(|[pP]alette|setIconSize|Highlight|ScrollMode|AutoFill|"
                     r"Point|Rect|Poly|Ellipse|Arc\(|lineTo|Subpath|painter|\bp\.|horizontalAdvance|Advance\(0, 0\)|\{\d+, u\"|raise\(\)")
POSTO = re.compile(r"add(?:Widget|Layout|Item)\(")


def righe_di_codice(testo, stanza):
    """Numbers and texts of the lines worth changing: no comments, no preprocessor, no looks, no room made beforehand."""
    fuori = ASPETTO if stanza in STANZE_CHE_DISEGNANO else re.compile(r"reserve\(")
    for numero, riga in enumerate(testo.split("\n")):
        nuda = riga.strip()
        if nuda and not nuda.startswith(("//", "#", "namespace", "using", "static_assert", "template", "/*", "*", "Q_")):
            if not fuori.search(riga):
                yield numero, riga


def fuori_dalle_stringhe(riga):
    """The line with its texts and its comment blanked out, so that nothing is found in them."""
    coperta = re.sub(r'"(?:[^"\\]|\\.)*"|\'(?:[^\'\\]|\\.)\'', lambda m: "\x01" * len(m[0]), riga)
    return re.sub(r"//.*", lambda m: "\x01" * len(m[0]), coperta)


def luoghi(stanze):
    """Every fault that could be put in, as {room, file, riga (text), numero, da, a, nuovo}."""
    for file in sorted(RADICE.glob("src/*/**/*.cpp")):
        stanza = file.relative_to(RADICE / "src").parts[0]
        nome = str(file.relative_to(RADICE))
        if stanze and not any(nome.startswith((f"src/{s}/", f"src/{s}.cpp")) for s in stanze):
            continue
        for numero, riga in righe_di_codice(file.read_text(), stanza):
            nuda = fuori_dalle_stringhe(riga)
            dato = {"stanza": stanza, "file": nome, "riga": riga, "numero": numero + 1}
            for cerca, metti in [] if POSTO.search(riga) else SCAMBI:
                for trovato in re.finditer(cerca, nuda):
                    originale = re.compile(cerca).match(riga, trovato.start())
                    if originale:
                        nuovo = originale.expand(metti) if isinstance(metti, str) else metti(originale)
                        yield dato | {"da": trovato.start(), "a": originale.end(), "nuovo": nuovo}
            tolta = ISTRUZIONE.match(riga)
            if tolta:
                yield dato | {"da": len(tolta[1]), "a": len(riga), "nuovo": ";"}


def estrai(tutti, numero, caso):
    """A draw with at least five places of each room, the others by the rooms' shares."""
    per_stanza = defaultdict(list)
    for luogo in tutti:
        per_stanza[luogo["stanza"]].append(luogo)
    estratti, resto = [], []
    for stanza in sorted(per_stanza):
        caso.shuffle(per_stanza[stanza])
        estratti += per_stanza[stanza][:5]
        resto += per_stanza[stanza][5:]
    caso.shuffle(resto)
    estratti = (estratti + resto)[:numero] if numero > len(estratti) else estratti
    caso.shuffle(estratti)  # so that a run that is broken off has seen all rooms
    return estratti[:numero]


class Banco:
    """The copy of the checkout, its build, and the tests that see each room."""

    def __init__(self, cartella):
        self.cartella = cartella
        self.albero = cartella / "albero"
        self.build = cartella / "build"
        self.temporanea = cartella / "tmp"
        self.durate = {}
        self.prove = {}

    def prepara(self):
        elenco = subprocess.run(["git", "ls-files"], cwd=RADICE, capture_output=True, text=True, check=True).stdout
        voluti = {nome for nome in elenco.splitlines() if (RADICE / nome).is_file()}
        for nome in voluti:
            contenuto, a = (RADICE / nome).read_bytes(), self.albero / nome
            if nome == "tests/CMakeLists.txt":  # only what is changed has to stand by itself
                contenuto = b"set(CRONOVIA_UNITY ON)\n" + contenuto
            if not a.exists() or a.read_bytes() != contenuto:
                a.parent.mkdir(parents=True, exist_ok=True)
                a.write_bytes(contenuto)
        for file in list(self.albero.rglob("*")):
            if file.is_file() and str(file.relative_to(self.albero)) not in voluti:
                file.unlink()
        # What a fault makes superfluous is no error, and what will be thrown away again is not kept in a cache.
        lancio = self.cartella / "compila"
        cache = "ccache " if shutil.which("ccache") else ""
        lancio.write_text('#!/bin/sh\nfor ultimo; do :; done\n'
                          f'[ "$ultimo" = "$MUTATO" ] && exec "$@" -w\nexec {cache}"$@"\n')
        lancio.chmod(0o755)
        subprocess.run(["cmake", "-S", self.albero, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0",
                        "-DCRONOVIA_TESTS=ON",
                        f"-DCMAKE_CXX_COMPILER_LAUNCHER={lancio}", "-DCRONOVIA_UNITY=OFF",
                        "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST"]
                       + [f"-DCMAKE_{cosa}_LINKER_FLAGS=-fuse-ld={legatore}" for legatore in ("mold", "gold")
                          if shutil.which("ld." + legatore) for cosa in ("EXE", "MODULE", "SHARED")][:3],
                       stdout=subprocess.DEVNULL, check=True)
        self.leggi_stanze()
        if self.compila(sorted(self.prove), None) != "ok":
            sys.exit(f"the build fails: see {self.cartella / 'build.log'}")

    def leggi_stanze(self):
        """Which tests see which room: what a target links says so; who starts the program sees everything."""
        legami, stanza_di = defaultdict(set), {}
        for file in self.albero.glob("src/**/CMakeLists.txt"):
            for blocco in re.findall(r"(?:cronovia_room|add_library|target_link_libraries)\s*\(([^)]*)\)", file.read_text()):
                nome, *parole = [p.removeprefix("cronovia_") if p.startswith("cronovia_") else p for p in blocco.split()]
                legami[nome] |= set(parole)
                stanza_di.setdefault(nome, file.relative_to(self.albero / "src").parts[0])
        for giro in re.findall(r"foreach\(room ([^)]*)\)", (self.albero / "src/CMakeLists.txt").read_text()):
            legami["core"] |= set(giro.split())

        def sotto(bersaglio, visti):
            for altro in legami.get(bersaglio, set()) - visti:
                visti.add(altro)
                sotto(altro, visti)
            return visti

        for file in self.albero.glob("tests/*/CMakeLists.txt"):
            testo = file.read_text()
            viste = set().union(*(sotto(b, {b}) for b in re.findall(r"\bcronovia_(\w+)", testo) if b != "test"))
            self.prove[file.parent.name] = None if "CRONOVIA_PROGRAM" in testo else {stanza_di.get(v) for v in viste}

    def che_vedono(self, stanza):
        """Tests of the room first, then those above it, the quick ones before the slow ones."""
        vedono = [p for p, viste in self.prove.items() if viste is None or stanza in viste]
        return sorted(vedono, key=lambda p: (p != stanza, self.durate.get(p, 0)))

    def compila(self, prove, mutato):
        ambiente = os.environ | {"MUTATO": str(mutato) if mutato else ""}
        with open(self.cartella / "build.log", "w") as registro:
            esito = subprocess.run(["ninja", "-C", str(self.build), "-j2"] + [f"{p}_test" for p in prove], env=ambiente,
                                   stdout=registro, stderr=subprocess.STDOUT, check=False)
        return "ok" if esito.returncode == 0 else "non compila"

    def prova(self, prova, limite):
        """"ok", "fallita" or "tempo", and the test that failed."""
        def limita():
            resource.setrlimit(resource.RLIMIT_AS, (MEMORIA, MEMORIA))
            resource.setrlimit(resource.RLIMIT_FSIZE, (DISCO, DISCO))
        shutil.rmtree(self.temporanea, ignore_errors=True)
        self.temporanea.mkdir()
        comando = [self.build / "tests" / prova / f"{prova}_test", "--gtest_fail_fast", "--gtest_brief=1"]
        with tempfile.TemporaryFile() as uscita:
            processo = subprocess.Popen(comando, stdout=uscita, stderr=subprocess.STDOUT, cwd=self.temporanea,
                                        env=os.environ | {"TMPDIR": str(self.temporanea), "CRONOVIA_UCCISIONI": "1"}, preexec_fn=limita,
                                        start_new_session=True)
            try:
                codice = processo.wait(limite)
            except subprocess.TimeoutExpired:
                codice = None
            finally:
                try:  # what it started itself may still run
                    os.killpg(processo.pid, signal.SIGKILL)
                except ProcessLookupError:
                    pass
                processo.wait()
            if codice is None:
                return "tempo", ""
            uscita.seek(0)
            fallito = re.search(rb"\[  FAILED  \] ([\w./]+)", uscita.read())
            return ("ok", "") if codice == 0 else ("fallita", fallito[1].decode() if fallito else f"code {codice}")

    def misura(self):
        """All tests once without a fault: they must pass, and tell how long each takes."""
        for prova in sorted(self.prove):
            inizio = time.monotonic()
            esito, test = self.prova(prova, 600)
            if esito != "ok":
                sys.exit(f"without any fault {prova}_test fails: {test or esito}")
            self.durate[prova] = time.monotonic() - inizio

    def tenta(self, luogo):
        """What becomes of a fault: "non compila", "sopravvive", or the test that noticed it."""
        file = self.albero / luogo["file"]
        originale = file.read_text()
        righe = originale.split("\n")
        dove = luogo["numero"] - 1
        if righe[dove] != luogo["riga"]:  # the file has grown or shrunk since
            if luogo["riga"] not in righe:
                return "sparita"
            dove = righe.index(luogo["riga"])
        righe[dove] = luogo["riga"][:luogo["da"]] + luogo["nuovo"] + luogo["riga"][luogo["a"]:]
        try:
            file.write_text("\n".join(righe))
            for prova in self.che_vedono(luogo["stanza"]):
                if self.compila([prova], file) != "ok":
                    return "non compila"
                esito, test = self.prova(prova, 20 + 5 * self.durate[prova])
                if esito != "ok":
                    return f"{prova}: {test or 'too long'}"
            return "sopravvive"
        finally:
            file.write_text(originale)


def descrivi(luogo):
    vecchio = luogo["riga"][luogo["da"]:luogo["a"]].strip()
    return f'{luogo["file"]}:{luogo["numero"]}: «{vecchio}» → «{luogo["nuovo"].strip()}»   in: {luogo["riga"].strip()}'


def relazione(esiti):
    conti = defaultdict(Counter)
    for luogo in esiti:
        esito = luogo["esito"]
        conti[luogo["stanza"]][esito if esito in ("non compila", "sopravvive", "sparita") else "colta"] += 1
    totale = sum(conti.values(), Counter())
    print(f"\n{'room':12} {'tried':>6} {'caught':>7} {'share':>6}   (not compiled)")
    for stanza, c in sorted(conti.items()) + [("all", totale)]:
        provati = c["colta"] + c["sopravvive"]
        quota = f"{100 * c['colta'] / provati:.0f}%" if provati else "-"
        print(f"{stanza:12} {provati:6} {c['colta']:7} {quota:>6}   ({c['non compila'] + c['sparita']})")
    print("\nSurvivors:")
    for luogo in esiti:
        if luogo["esito"] == "sopravvive":
            print("  " + descrivi(luogo))


def main():
    argomenti = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    argomenti.add_argument("--numero", type=int, default=150)
    argomenti.add_argument("--seme", type=int, default=1)
    argomenti.add_argument("--stanze", default="", help="rooms or parts of them, separated by commas")
    argomenti.add_argument("--parte", default="1/1")
    argomenti.add_argument("--riprova", action="store_true")
    argomenti.add_argument("--cartella", type=Path, default=RADICE / "build" / "mutazioni")
    scelte = argomenti.parse_args()
    stanze = set(scelte.stanze.split(",")) - {""}
    file_esito = scelte.cartella.resolve() / "esito.json"
    file_esito.parent.mkdir(parents=True, exist_ok=True)
    if scelte.riprova:
        da_provare = [l for l in json.loads(file_esito.read_text())
                      if l["esito"] == "sopravvive" and (not stanze or l["stanza"] in stanze)]
        file_esito = file_esito.with_name("riprova.json")
    else:
        da_provare = estrai(list(luoghi(stanze)), scelte.numero, random.Random(scelte.seme))
    parte, parti = map(int, scelte.parte.split("/"))
    da_provare = da_provare[parte - 1::parti]
    banco = Banco(scelte.cartella.resolve())
    banco.prepara()
    banco.misura()
    print("tests: " + ", ".join(f"{p} {d:.1f} s" for p, d in sorted(banco.durate.items())), flush=True)
    signal.signal(signal.SIGTERM, signal.default_int_handler)
    esiti = []
    try:
        for i, luogo in enumerate(da_provare, 1):
            inizio = time.monotonic()
            luogo["esito"] = banco.tenta(luogo)
            esiti.append(luogo)
            print(f"{i}/{len(da_provare)} {time.monotonic() - inizio:4.0f} s  {luogo['esito']:40} {descrivi(luogo)}", flush=True)
            file_esito.write_text(json.dumps(esiti, ensure_ascii=False, indent=1))
    except KeyboardInterrupt:
        print("broken off")
    relazione(sorted(esiti, key=lambda l: (l["stanza"], l["file"], l["numero"])))


if __name__ == "__main__":
    main()
