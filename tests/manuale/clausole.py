#!/usr/bin/env python3
"""clausole.py SOURCES FORMULAS HELP JOINT: every rule that the program applies or shows has its clause in the help.

Collects the clauses that the public headers name and those in the literals of sources and screens: what a screen, a report
or a message cites. Each must stand in the help, in the topic of the screen that shows it: TOPICS says which, by the longest
beginning of the file's path; a file that cites clauses and has no line there fails. A clause of which the help gives a part
(6.2.9 by 6.2.9.1) is there. Every block of the formulas of the joint cites its clause, too.
"""

import html
import re
import sys
from pathlib import Path

CLAUSE = re.compile(r"(?<![\w.,])((?:[1-9]\.\d{1,2}(?:\.\d{1,2})+)|(?:[FJ][. ]\d(?:\.\d)*))")
LITERAL = re.compile(r'"((?:[^"\\]|\\.)*)"')
CITED = re.compile(r"EC3|ENV|EN 1993|appendice J|J\.\d")

CLASSES = ["FrmClasseDoppioTU", "LblClasse"]
BUCKLING = ["FrmInstabDoppioT", "frmSagomiU"]
MEMBER = ["FrmPresFless"]
LATERAL = ["FrmMsverg"]
SECTION = ["FrmVerifiche", "LblNbRd"]
ALL = CLASSES + BUCKLING + MEMBER + LATERAL + SECTION + ["FrmMcRd"]
# Names of measures and of what a table gives: a definition, no rule.
MEASURES = {"Diam", "rond_d2", "Areares", "ec", "w", "pint", "hf", "bf", "ef", "ex", "d2", "dX", "u", "L", "tf_max", "L_max",
            "u_max", "Irr_Spessore", "Irr_B", "Irr_L1", "Irr_L2"}

JOINT = ["J:"]  # every topic of its own file

TOPICS = {
    "choice/": ["FrmScelta"],
    "composite/": ["frmAcciaioCls"],
    "composite/AcciaioCls.h": ["frmAcciaioCls", "frmConnettori"],
    "composite/AcciaioClsConnettori": ["frmConnettori"],
    "composite/ProgettoConnettori": ["frmConnettori"],
    "composite/ui/FormaConnettori": ["frmConnettori"],
    "composite/ui/frmConnettori": ["frmConnettori"],
    "criticalloads/": ["frmTimoshenko"],
    "fasteners/Bullone": ["frmBulloni"],
    "fasteners/VerdettoBullone": ["frmBulloni"],
    "fasteners/ui/frmBulloni": ["frmBulloni"],
    "fasteners/Saldatura": ["frmSaldature"],
    "fasteners/ui/frmSaldature": ["frmSaldature"],
    "frame/Generale.h": ["NormativaMain"],
    "joints/": JOINT,
    "joints/DiagrammaRigidezza": ["J:pagRigidezza"],
    "joints/GeneraleGiunto": ["J:Parametri"],
    "joints/GiuntoMomento": ["J:pagResistenza"],
    "joints/GiuntoRigidezza": ["J:pagRigidezza"],
    "joints/SagomiNodo": ["J:pagDati"],
    "joints/ui/PaginaProgetto": ["J:pagProgetto"],
    "report/Capitoli": ALL,
    "report/CapitoloConnettori": ["frmConnettori"],
    "report/CapitoloEfficace": ALL + ["frmSagomiU"],
    "report/PassiSagomo": ALL,
    "report/RelazioneCollegamenti": ["frmBulloni", "frmSaldature"],
    "report/RelazioneNodo": JOINT,
    "report/RelazioneTrave": ["frmAcciaioCls", "frmConnettori"],
    "screens/CalcoloChi": ["FrmInstabDoppioT"],
    "screens/ColonnaInstabilita": ["FrmInstabDoppioT"],
    "screens/DisegniRegole": ALL + ["NormativaMain"],
    "screens/FrmClasseDoppioTU": ["FrmClasseDoppioTU"],
    "screens/FrmClasseSagomiL": ["frmSagomiU"],
    "screens/FrmInstabDoppioT": ["FrmInstabDoppioT"],
    "screens/FrmInstabSagomi": ["frmSagomiU"],
    "screens/FrmMcRd": ["FrmMcRd"],
    "screens/FrmMsverg": ["FrmMsverg"],
    "screens/frmMsvergH": ["FrmMsverg"],
    "screens/FrmPresFless": ["FrmPresFless"],
    "screens/FrmVerifiche": ["FrmVerifiche"],
    "screens/PannelloAzioni": BUCKLING,
    "screens/PannelloInstabilita": BUCKLING,
    "screens/SchermoSezione": ["LblNbRd"],
    "screens/TestaDettaglio": ["ComboTipoAcciaio"],
    "screens/VociSezione": ["LblNbRd"],
    "sections/": ALL,
    "sections/DiagrammaMomenti": MEMBER,
    "sections/DisegniMomento": LATERAL,
    "sections/Duttilita": ["FrmMcRd"],
    "sections/FattoriMomento": LATERAL,
    "sections/LimitiClasse": CLASSES,
    "sections/MostraVplRd": ["LblNbRd"],
    "sections/PressoFlessione": MEMBER,
    "sections/Sezione": ALL + ["frmSagomiU"],
}


def cited(file):
    """The clauses that a file names, in the words of its readers: comments of headers, literals else."""
    text = file.read_text("utf-8")
    if file.suffix == ".cpp":
        text = " ".join(LITERAL.findall(re.sub(r"(?m)//[^\"\n]*$", "", text)))
    return {c.replace(" ", ".") for c in CLAUSE.findall(text)}


def plain(text):
    return " ".join(html.unescape(re.sub(r"<[^>]*>", " ", text)).split())


def topics(text, prefix):
    """The text of each topic, from its heading to the next of that kind, by all its places; and of the whole."""
    found = {prefix: plain(text)}
    for part in re.split(r"(?=<h[12]>)", text):
        for name in re.findall(r'name="([^"]+)"', part):
            found.setdefault(prefix + name, plain(part))
    return found


def stands(clause, text):
    number = re.escape(clause).replace(r"F\.", r"F[. ]")
    return re.search(rf"(?<!\d)(?<!\d\.){number}(?!\d)", text) is not None


def blocks(formulas):
    """The blocks of the formulas by their names."""
    parts = re.split(r"ID-RTF-GIUNTO-(\w+)", formulas)
    return {name: body for name, body in zip(parts[1::2], parts[2::2]) if len(body) > 40}


def main():
    sources, formulas = Path(sys.argv[1]), Path(sys.argv[2])
    known = topics(Path(sys.argv[3]).read_text("utf-8"), "") | topics(Path(sys.argv[4]).read_text("utf-8"), "J:")
    errors = [f"no topic {t}" for ts in TOPICS.values() for t in ts if t not in known]
    files = sorted(f for f in sources.rglob("*") if f.suffix in (".h", ".cpp", ".ui"))
    told, unused = 0, set(TOPICS)
    for file in files:
        place = str(file.relative_to(sources))
        clauses = cited(file)
        if not clauses:
            continue
        key = next((k for k in sorted(TOPICS, key=len, reverse=True) if place.startswith(k)), None)
        if key is None:
            errors.append(f"{place}: which topic of the help is about {', '.join(sorted(clauses))}?")
            continue
        unused.discard(key)
        for clause in sorted(clauses):
            told += 1
            if not any(stands(clause, known.get(t, "")) for t in TOPICS[key]):
                errors.append(f"{place}: {clause} is not in {' or '.join(TOPICS[key])}")
    errors += [f"nothing cites a clause in {k}" for k in sorted(unused)]
    found = blocks(formulas.read_text("cp1252"))
    errors += [f"the block {name} cites no clause" for name, body in found.items()
               if not CITED.search(body) and name not in MEASURES]
    if told < 200 or len(found) < 50:
        errors.append(f"only {told} clauses and {len(found)} blocks found")
    print("\n".join(errors) or f"{told} clauses, {len(found)} blocks")
    sys.exit(1 if errors else 0)


if __name__ == "__main__":
    main()
