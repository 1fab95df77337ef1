#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the archive stands: damaged files, the program killed at any moment, a disk that fails at any call.

    tests/resistenza.py guasti --numero 600      archives with damaged bytes: no changed answer, no new data
    tests/resistenza.py uccisioni --numero 1000  every verb that writes, killed: whole or absent
    tests/resistenza.py disco                    every verb that writes, with each call that changes a file failing

Each finding is a line with what repeats it (--seme, verb, number); any finding makes the exit code 1. Without --numero
it is a short run. Killing the window is tests/ui/uccisioni_finestra_test.cpp.
"""
import argparse
import collections
import os
import pathlib
import random
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import time

RADICE = pathlib.Path(__file__).resolve().parent.parent
ESEMPI = RADICE / "examples"
ARCHIVIO = "VandroCronovia.mdb"
MEMORIA = "/dev/shm" if os.path.isdir("/dev/shm") else None
programma = RADICE / "build/dev/src/cronovia"
trovati = []


def trovato(testo):
    trovati.append(testo)
    print("TROVATO:", testo, flush=True)


def esegui(cartella, *parole, **ambiente):
    """Exit code (negative: killed by a signal), answer, errors."""
    esito = subprocess.run([programma, "--cartella", cartella, *parole], capture_output=True, timeout=60,
                           env=os.environ | {"LC_ALL": "C"} | ambiente)
    return esito.returncode, esito.stdout, esito.stderr.decode(errors="replace").strip()


def pretendi(cartella, *parole):
    codice, uscita, errori = esegui(cartella, *parole)
    if codice != 0:
        sys.exit(f"{parole}: {codice} {errori}")
    return uscita


def contenuto(cartella):
    """All rows of all tables, by an own way to the file; None when it cannot be read whole or is not in order."""
    try:
        archivio = sqlite3.connect(cartella / ARCHIVIO)
        archivio.text_factory = lambda byte: ("testo", byte)
        try:
            if archivio.execute("PRAGMA integrity_check").fetchall() != [(("testo", b"ok"),)]:
                return None
            nomi = [nome[1].decode() for (nome,) in archivio.execute("SELECT name FROM sqlite_master WHERE type = 'table'")]
            return {nome: archivio.execute(f'SELECT * FROM "{nome}" ORDER BY rowid').fetchall() for nome in nomi}
        finally:
            archivio.close()
    except (sqlite3.Error, UnicodeDecodeError):
        return None


def nuova_cartella(radice, nome, *esempi):
    cartella = radice / nome
    cartella.mkdir()
    for esempio in esempi:
        pretendi(cartella, "importa", ESEMPI / f"{esempio}.iei")
    return cartella


def copia(da, a):
    shutil.rmtree(a, ignore_errors=True)
    shutil.copytree(da, a)
    return a


# Damaged archives

def guasta(byte, caso):
    """One damage, and what it was."""
    pagine = len(byte) // 4096
    dove = caso.randrange(len(byte))
    genere = caso.choice(["zero", "bit", "255", "pezzo", "settore", "pagina", "scambio", "corto", "coda", "intestazione"])
    if genere == "zero":
        byte[dove] = 0
    elif genere == "bit":
        byte[dove] ^= 1 << caso.randrange(8)
    elif genere == "255":
        byte[dove] = 255
    elif genere == "pezzo":
        lungo = caso.randrange(1, 64)
        byte[dove:dove + lungo] = caso.randbytes(len(byte[dove:dove + lungo]))
    elif genere == "settore":
        dove -= dove % 512
        byte[dove:dove + 512] = bytes(512)
    elif genere == "pagina":
        dove -= dove % 4096
        byte[dove:dove + 4096] = bytes(4096)
    elif genere == "scambio":
        a, b = (4096 * n for n in caso.sample(range(pagine), 2))
        byte[a:a + 4096], byte[b:b + 4096] = byte[b:b + 4096], byte[a:a + 4096]
    elif genere == "corto":
        del byte[dove:]
    elif genere == "coda":
        byte += caso.randbytes(caso.randrange(1, 8192))
    else:
        byte[caso.randrange(100)] = caso.randrange(256)
    return f"{genere} a {dove}"


def risposte(cartella, codici):
    verbi = [("elenca",), ("guida",)] + [(verbo, codice) for codice in codici for verbo in ("itinerario", "calcola")]
    date = {verbo: esegui(cartella, *verbo, "--formato", "json")[:2] for verbo in verbi}
    fuori = cartella / "fuori.iei"
    codice = esegui(cartella, "esporta", fuori)[0]
    date["esporta"] = (codice, fuori.read_bytes() if fuori.exists() else b"")
    fuori.unlink(missing_ok=True)
    return date


def altre_lettere(dati, intero):
    """Whether these are other values of the same kinds in the same rows: nobody can know that they are others."""
    def stesso_genere(a, b):
        if not isinstance(a, tuple) or not isinstance(b, tuple):
            return type(a) is type(b)
        return a == b or a[1].decode(errors="ignore").encode() == a[1]

    return dati != intero and dati.keys() == intero.keys() and all(
        len(dati[nome]) == len(intero[nome]) and
        all(stesso_genere(a, b) for riga, sua in zip(dati[nome], intero[nome]) for a, b in zip(riga, sua))
        for nome in intero)


def prova_guasto(quale, cartella, attese, intero, conto):
    dati = contenuto(cartella)
    if dati is not None and altre_lettere(dati, intero):
        conto["altre lettere in un archivio in ordine"] += 1
        return
    dati = dati if dati == intero else None
    date = risposte(cartella, ["1", "2", "3"])
    cambiate = [verbo for verbo, (codice, uscita) in date.items() if codice == 0 and uscita != attese[verbo][1]]
    for verbo, (codice, _) in date.items():
        if codice not in (0, 1):
            trovato(f"{quale}: {verbo} finisce con {codice}")
    if cambiate:
        trovato(f"{quale}: altra risposta con codice 0 di {cambiate}")
    codice, _, _ = esegui(cartella, "nuova", "ROMA", "ITALIA", "--inizio", "05/06/2027 08:00")
    if codice not in (0, 1):
        trovato(f"{quale}: nuova finisce con {codice}")
    if codice == 0 and dati is None:
        trovato(f"{quale}: dati nuovi in un archivio danneggiato")
    letto = any(codice == 0 for codice, _ in date.values())
    conto[("danno visto" if not letto else "letto com'era") + (", scritto" if codice == 0 else "")] += 1


def guasti(radice, numero, seme):
    sano = nuova_cartella(radice, "sano", "capo-nord", "sicilia", "provenza")
    attese = risposte(sano, ["1", "2", "3"])
    if any(codice != 0 for codice, _ in attese.values()):
        sys.exit("the sound archive is not read")
    intero = contenuto(sano)
    byte = (sano / ARCHIVIO).read_bytes()
    conto = collections.Counter()
    for i in range(numero):
        cartella = radice / "guasto"
        shutil.rmtree(cartella, ignore_errors=True)
        cartella.mkdir()
        guasto = bytearray(byte)
        quale = f"--seme {seme + i} --numero 1: " + guasta(guasto, random.Random(seme + i))
        (cartella / ARCHIVIO).write_bytes(guasto)
        prova_guasto(quale, cartella, attese, intero, conto)
    print(f"{numero} archivi guasti:", ", ".join(f"{cosa} {quanti}" for cosa, quanti in sorted(conto.items())))


# Verbs that write: a folder as it is before, and the line

def vecchi_file(cartella):
    mete = guida = b""
    for numero in (f"{i:04}".encode() for i in range(1, 31)):
        mete += ((b"META " + numero).ljust(97) + numero).ljust(128)
        guida += ((b"TAPPA " + numero).ljust(30) + b"1Duomo").ljust(128)
        tappe = (b"20".ljust(24) + b"20 ").ljust(64) + ((b"TAPPA " + numero).ljust(24) + b" 10A").ljust(64) * 20
        (cartella / f"vand{numero.decode()}.dat").write_bytes(tappe)
    (cartella / "VandMete.dat").write_bytes(mete)
    (cartella / "VandGuid.dat").write_bytes(guida)


def scritture(radice):
    voce = ["ALBA", "Ottimo", "Le torri"]
    base = nuova_cartella(radice, "base", "provenza", "sicilia")
    pretendi(base, "guida", "--aggiungi", *voce, "00:30")
    for nome in ("fuori.iei", "fuori.pdf", "Vandtabl.txt"):
        (base / nome).write_bytes(b"quello di prima")
    vuota = copia(base, radice / "vuota")
    nuova = pretendi(vuota, "nuova", "CORSICA", "FRANCIA", "--inizio", "05/06/2027 08:00").decode().strip()
    vecchi = copia(base, radice / "vecchi")
    vecchi_file(vecchi)
    rotta = copia(base, radice / "rotta")
    with open(rotta / ARCHIVIO, "r+b") as archivio:  # an index of the stages: every row can still be read
        archivio.seek(5 * 4096)
        archivio.write(b"\0")
    return {
        "nuova": (base, ["nuova", "ROMA", "ITALIA", "--inizio", "05/06/2027 08:00"]),
        "importa": (base, ["importa", ESEMPI / "capo-nord.iei"]),
        "percorso": (vuota, ["percorso", nuova, ESEMPI / "percorsi/livorno-ajaccio.txt"]),
        "guida --aggiungi": (base, ["guida", "--aggiungi", "ASTI", "Ottimo", "Torre Troyana", "00:30"]),
        "guida --togli": (base, ["guida", "--togli", *voce]),
        "converte": (vecchi, ["converte"]),
        "ripristina": (base, ["ripristina", "1"]),
        "verifica --ripara": (rotta, ["verifica", "--ripara", "--conferma"]),
        "esporta": (base, ["esporta", "{cartella}/fuori.iei", "--sovrascrivi"]),
        "giornate --pdf": (base, ["giornate", "3", "--pdf", "{cartella}/fuori.pdf", "--sovrascrivi"]),
        "stampa": (base, ["stampa", "3", "--pdf", "{cartella}/fuori.pdf", "--sovrascrivi"]),
        "calcola --tabella": (base, ["calcola", "3", "--tabella"]),
    }


def riga(parole, cartella):
    return [str(parola).replace("{cartella}", str(cartella)) for parola in parole]


def file_interi(cartella):
    """The files that travel; of a PDF, in which the time stands, whether it is whole."""
    stato = {}
    for nome in ("fuori.iei", "fuori.pdf", "Vandtabl.txt"):
        byte = (cartella / nome).read_bytes() if (cartella / nome).exists() else None
        pdf = byte is not None and byte.startswith(b"%PDF") and byte.rstrip().endswith(b"%%EOF")
        stato[nome] = "PDF" if pdf else byte
    return stato


def stato(cartella):
    """As contenuto; of a damaged archive its bytes, after what was begun and not ended was taken back."""
    return contenuto(cartella) or (cartella / ARCHIVIO).read_bytes()


class Scrittura:
    """A verb on a copy of its folder, which is then as before or as after a run that nothing disturbed."""

    def __init__(self, radice, nome, prima, parole):
        self.nome, self.prima, self.parole = nome, prima, parole
        self.cartella = copia(prima, radice / "prova")
        self.dati_prima, self.file_prima = stato(prima), file_interi(prima)
        inizio = time.monotonic()
        pretendi(self.cartella, *riga(parole, self.cartella))
        self.durata = time.monotonic() - inizio
        self.dati_dopo, self.file_dopo = stato(self.cartella), file_interi(self.cartella)

    def guarda(self, quale, codice):
        """`codice` is None when it was killed. Returns whether the archive is the one after."""
        dati, file = stato(self.cartella), file_interi(self.cartella)
        if dati not in (self.dati_prima, self.dati_dopo):
            trovato(f"{quale}: l'archivio non è né quello di prima né quello di dopo")
        for nome, byte in file.items():
            if byte not in (self.file_prima[nome], self.file_dopo[nome]):
                trovato(f"{quale}: {nome} non è né quello di prima né quello di dopo")
        if codice is not None and codice not in (0, 1):
            trovato(f"{quale}: finisce con {codice}")
        if codice == 0 and (dati, file) != (self.dati_dopo, self.file_dopo):
            trovato(f"{quale}: dice di aver fatto, e non ha fatto")
        if codice == 1 and self.dati_prima != self.dati_dopo and dati == self.dati_dopo:
            trovato(f"{quale}: dice di non aver fatto, e ha fatto")
        if esegui(self.cartella, "elenca")[0] != (1 if isinstance(dati, bytes) else 0):
            trovato(f"{quale}: dopo, l'archivio non si apre")
        return dati == self.dati_dopo and file == self.file_dopo


def uccisioni(radice, numero, seme):
    caso = random.Random(seme)
    verbi = scritture(radice)
    for nome, (prima, parole) in verbi.items():
        scrittura = Scrittura(radice, nome, prima, parole)
        uccise = intere = 0
        while uccise < max(1, numero // len(verbi)):
            copia(prima, scrittura.cartella)
            processo = subprocess.Popen([programma, "--cartella", scrittura.cartella, *riga(parole, scrittura.cartella)],
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            time.sleep(caso.random() * scrittura.durata)
            processo.kill()
            if processo.wait() >= 0:  # ended before
                scrittura.durata *= 0.95
                continue
            scrittura.durata *= 1.02
            uccise += 1
            intere += scrittura.guarda(f"uccisione {uccise} di {nome}", None)
        print(f"{nome}: uccisioni {uccise}, fatto {intere}, non fatto {uccise - intere}", flush=True)


def disco(radice, numero, _seme):
    preposto = radice / "disco_guasto.so"
    subprocess.run([os.environ.get("CC", "cc"), "-shared", "-fPIC", "-O1", "-o", preposto,
                    RADICE / "tests/disco_guasto.c", "-ldl"], check=True)
    totale = 0
    for nome, (prima, parole) in scritture(radice).items():
        scrittura = Scrittura(radice, nome, prima, parole)
        conto = radice / "conto"
        cartella = scrittura.cartella

        def con_guasto(quale, **poi):
            copia(prima, cartella)
            return esegui(cartella, *riga(parole, cartella), LD_PRELOAD=str(preposto), DISCO_CARTELLA=str(cartella),
                          DISCO_GUASTO=str(quale), DISCO_CONTO=str(conto), **poi)[0]

        if con_guasto(0) != 0:
            sys.exit(f"{nome} fails without a fault")
        chiamate = int(conto.read_text())
        passo = 1 if numero == 0 else max(1, chiamate // numero)
        provate = fatte = 0
        for quale in range(1, chiamate + 1, passo):
            for poi in ({}, {"DISCO_POI": "1"}):
                codice = con_guasto(quale, **poi)
                provate += 1
                fatte += scrittura.guarda(f"{nome}, chiamata {quale}{' e seguenti' if poi else ''}", codice)
        totale += provate
        print(f"{nome}: chiamate {chiamate}, guasti {provate}, fatto {fatte}, non fatto {provate - fatte}", flush=True)
        if chiamate == 0:
            trovato(f"{nome}: nessuna chiamata vista")
    print(f"guasti del disco: {totale}")


def main():
    global programma
    righe = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    righe.add_argument("prova", choices=["guasti", "uccisioni", "disco", "breve"])
    righe.add_argument("--numero", type=int, help="how many; for the disk: calls of each verb, 0 for all")
    righe.add_argument("--seme", type=int, default=1)
    righe.add_argument("--programma", type=pathlib.Path, default=programma)
    scelte = righe.parse_args()
    programma = scelte.programma.resolve()
    prove = {"guasti": (guasti, 15), "uccisioni": (uccisioni, 18), "disco": (disco, 4)}
    for nome in prove if scelte.prova == "breve" else [scelte.prova]:
        prova, breve = prove[nome]
        with tempfile.TemporaryDirectory(prefix="cronovia-", dir=MEMORIA) as radice:
            prova(pathlib.Path(radice), breve if scelte.numero is None else scelte.numero, scelte.seme)
    print(f"trovati: {len(trovati)}")
    sys.exit(1 if trovati else 0)


if __name__ == "__main__":
    main()
