#!/usr/bin/env python3
"""messaggi.py SOURCES HELP...: every message that the program tells stands in the help with its cause and remedy.
messaggi.py --detti SOURCES HELP...: each message as it may be told, and behind tabs the first cells that may explain it.

Collects what the sources hand to the message port: the literals inside Avvisa, AvvisaSaltabile, Chiede and Dice, and
those of the errors that are told by what(). The words of a message up to its first value must stand in the first cell
of a row of a table whose head is "Messaggio", or begin as such a cell does that is cut with dots. A call that hands on what stands elsewhere is listed in ELSEWHERE with the
words that it tells; a new one fails until it is.
"""

import html
import re
import sys
from pathlib import Path

CALLS = re.compile(r"\b(Avvisa|AvvisaSaltabile|Chiede|Dice|throw Errore(?:Catalogo|Lettura|File|Numerato|Aritmetico))\s*\(")
LITERAL = re.compile(r'"((?:[^"\\]|\\.)*)"')
TITLES = {"Attenzione !", "Giunto Flangiato", "ERRORE", "ATTENZIONE ", "S", "."}

# What a call hands on: the words that it tells, each a literal of the sources.
ELSEWHERE = {
    "Avviso(db, calc)": ["Riscontrato valore troppo approssimato nel database"],
    "text, Titolo(riga, voce)": ["Riscontrato valore troppo approssimato nel database"],
    "messaggioNessunTipo": ["ERRORE !! Non è stato selezionato nessun tipo di sagomo"],
    "limite": ["Diametro dei connettori d > 20 mm !", "Altezza lamiera hp > 85 mm !", "bo < hp !"],
    "AvvisoNonScritto(": ["Non è possibile scrivere il file"],
    'modo == "S" ? AvvisoNonScritto(': ["Non è possibile scrivere il file", "Non è possibile leggere il file"],
    "motivoBetaA": ["BetaA deve essere <=1"],
    "messaggioElimina": ["Per eliminare un record aprire il file SagomiUtente.xls con Excel ed eliminare la riga."],
    "messaggioDati": ["Dati non accettabili od incompleti ! Controllare"],
    "error": ["I coefficienti parziali di sicurezza non possono essere negativi",
              "I coefficienti parziali di sicurezza devono essere compresi fra"],
    "ConsiglioGiunto(": ["Per aumentare il momento resistente:"],
    "missing": ["Inserire un valore diverso da zero per"],
    "errore, titolo": ["Progetto del giunto interrotto"],
    "prefisso": ["Errore in AttivaForm", "Errore in form_load"],
    # Collected before, told as they come: from the errors and the calls above.
    "e.what()": [], "std::string(e.what())": [], "testo": [], "testo, titolo": [], "testo, {}": [],
    "testo, titoloGiunto": [],
}


def argument(text, start):
    """What stands between a bracket and the one that closes it."""
    depth, at, quoted = 0, start, False
    while at < len(text):
        c = text[at]
        if quoted:
            at += c == "\\"
            quoted = c != '"' or text[at] != '"'
        elif c == '"':
            quoted = True
        elif c in "([{":
            depth += 1
        elif c in ")]}":
            depth -= 1
            if depth == 0:
                return text[start + 1:at]
        at += 1
    return ""


def words(literal):
    """The literal as it is read, up to its first line end."""
    text = literal.replace('\\"', '"').replace("\\r", "\n").replace("\\n", "\n")
    return " ".join(next((part for part in text.split("\n") if part.strip()), "").split())


def spoken(inside):
    """What a call tells, with a number in the place of each value; empty for what chooses between texts."""
    text = "".join(inside.split("\n"))
    if "?" in LITERAL.sub("", text):
        return ""
    told, end = "", None
    for m in LITERAL.finditer(text):
        between = "" if end is None else text[end:m.start()]
        if m[1] in TITLES or "," in re.sub(r"\([^()]*\)", "", between):
            break  # the next argument
        told += ("" if not between.strip() else " 7 " if "+" in between else "") + m[1]
        end = m.end()
    if end is not None and text[end:].lstrip().startswith("+"):
        told += " 7"
    return " ".join(told.replace('\\"', '"').replace("\\r", " ").replace("\\n", " ").split())


def tell(sources, known):
    """Each message of one call, and the cells that begin as it does."""
    for file in sorted(sources.rglob("*.cpp")):
        text = re.sub(r"(?m)//[^\"\n]*$", "", file.read_text("utf-8"))
        for call in CALLS.finditer(text):
            inside = argument(text, call.end() - 1)
            message = "" if declaration(inside) else spoken(inside)
            first = words(LITERAL.search(inside)[1]) if message else ""
            cells = [c for c in known if len(first) >= 8 and (first in c or begins(first, c))]
            if cells:
                print(message, *cells, sep="\t")


def declaration(argument_text):
    return argument_text.strip() == "" or argument_text.lstrip().startswith(("std::string_view", "const std::string"))


def collect(sources):
    """(place, words) of all that is told, and the calls that nobody has listed."""
    told, unknown = [], []
    for file in sorted(sources.rglob("*.cpp")) + sorted(sources.rglob("*.h")):
        text = re.sub(r"(?m)//[^\"\n]*$", "", file.read_text("utf-8"))
        place = str(file.relative_to(sources))
        for call in CALLS.finditer(text):
            inside = argument(text, call.end() - 1)
            if declaration(inside):
                continue
            key = next((k for k in sorted(ELSEWHERE, key=len, reverse=True) if inside.strip().startswith(k)), None)
            first = re.sub(r'"\s*\n\s*"', "", inside)
            literals = [words(m[1]) for m in LITERAL.finditer(first) if m[1] not in TITLES]
            literals = [w for w in literals if len(re.findall(r"[^\W\d]", w)) >= 4]
            if key is not None:
                told += [(place, w) for w in ELSEWHERE[key]]
            elif literals:
                told.append((place, max(literals[:2], key=len) if len(literals[0]) < 8 else literals[0]))
            elif not call[1].startswith("throw"):
                unknown.append(f"{place}: {call[1]}({' '.join(inside.split())[:70]})")
    return told, unknown


def flat(text):
    return " ".join(html.unescape(re.sub(r"<[^>]*>", "", text)).split())


def entries(help_text):
    """The first cells of the tables of messages."""
    cells = []
    for table in re.findall(r"<table[^>]*>(.*?)</table>", help_text, re.S):
        rows = [re.findall(r"<td[^>]*>(.*?)</td>", row, re.S) for row in re.findall(r"<tr>(.*?)</tr>", table, re.S)]
        if rows and rows[0] and flat(rows[0][0]) == "Messaggio":
            for row in rows[1:]:
                if len(row) < 2 or not all(flat(cell) for cell in row[:2]):
                    sys.exit(f"a message without cause: {row}")
                cells.append(flat(row[0]))
    return cells


def begins(text, cell):
    """An entry that is cut with dots gives the beginning of the message."""
    beginning = cell.partition("...")[0].strip()
    return "..." in cell and len(beginning) >= 12 and text.startswith(beginning)


def main():
    if sys.argv[1] == "--detti":
        tell(Path(sys.argv[2]), entries("".join(Path(f).read_text("utf-8") for f in sys.argv[3:])))
        return
    sources = Path(sys.argv[1])
    known = entries("".join(Path(f).read_text("utf-8") for f in sys.argv[2:]))
    told, unknown = collect(sources)
    literals = " ".join(" ".join(f.read_text("utf-8").split()) for f in sorted(sources.rglob("*.[ch]*")))
    errors = [f"nobody knows what it tells: {u}" for u in unknown]
    errors += [f"not in the sources any more: {w}" for ws in ELSEWHERE.values() for w in ws if w not in literals]
    for place, text in sorted(set(told)):
        if not any(text in cell or begins(text, cell) for cell in known):
            errors.append(f"{place}: not in the help: {text}")
    if len(told) < 90:
        errors.append(f"only {len(told)} messages found")
    print("\n".join(errors) or f"{len(set(told))} messages, {len(known)} entries")
    sys.exit(1 if errors else 0)


if __name__ == "__main__":
    main()
