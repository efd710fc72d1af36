#!/usr/bin/env python3
"""conti.py HELP: the figures of the tutorial that a hand can compute.

An element with data-conto="EXPRESSION" shows the value of it; data-nome="x" lets later expressions use the exact value
as x. A figure of a hand is right to its last digit; one that the program shows besides (data-legge) may differ from the
hand's by 0.3 %, since the program takes areas and moduli of its outlines. No figure of the tutorial's tables stands
without a mark.
"""

import ast
import math
import operator
import re
import sys

from html.parser import HTMLParser

OPERATIONS = {ast.Add: operator.add, ast.Sub: operator.sub, ast.Mult: operator.mul, ast.Div: operator.truediv,
              ast.Pow: operator.pow}


def value(node, names):
    if isinstance(node, ast.Expression):
        return value(node.body, names)
    if isinstance(node, ast.Constant):
        return float(node.value)
    if isinstance(node, ast.Name):
        return names[node.id]
    if isinstance(node, ast.UnaryOp):
        return -value(node.operand, names)
    if isinstance(node, ast.Call):
        return getattr(math, node.func.id)(*(value(a, names) for a in node.args))
    return OPERATIONS[type(node.op)](value(node.left, names), value(node.right, names))


def number(text):
    """A number as Italians write it, and half a unit of its last digit."""
    text = text.strip().replace(".", "")
    places = len(text.partition(",")[2])
    return float(text.replace(",", ".")), 0.5 * 10 ** -places


class Figures(HTMLParser):
    """The marked elements, and the texts of the second cells of rows that no mark covers."""

    def __init__(self):
        super().__init__()
        self.marked, self.bare = [], []
        self.stack, self.column, self.inside = [], 0, False

    def handle_starttag(self, tag, attrs):
        attrs = dict(attrs)
        if tag == "a" and str(attrs.get("name", "")).startswith("esempio"):
            self.inside = True
        elif tag == "a" and attrs.get("name") == "guida":
            self.inside = False
        if tag == "tr":
            self.column = 0
        if tag == "td":
            self.column += 1
        if tag in ("img", "br"):
            return
        marks = {k: v for k, v in attrs.items() if k.startswith("data-")}
        self.stack.append([tag, marks, ""])

    def handle_endtag(self, tag):
        while self.stack:
            name, marks, text = self.stack.pop()
            if marks and self.inside:
                self.marked.append((marks, text, self.getpos()[0]))
            if name == tag:
                return

    def handle_data(self, data):
        covered = any(marks for _, marks, _ in self.stack)
        for entry in self.stack:
            entry[2] += data
        cells = any(name == "td" for name, _, _ in self.stack)
        formula = any(name == "sub" for name, _, _ in self.stack)
        if self.inside and cells and self.column > 1 and not covered and not formula:
            if re.search(r"\d,\d|\d{3}", data):
                self.bare.append((data.strip(), self.getpos()[0]))


def main():
    figures = Figures()
    figures.feed(open(sys.argv[1], encoding="utf-8").read())
    errors = [f"{line}: {text} has no mark" for text, line in figures.bare]
    names, computed = {}, 0
    for marks, text, line in figures.marked:
        if "data-conto" not in marks:
            continue
        exact = value(ast.parse(marks["data-conto"], mode="eval"), names)
        if "data-nome" in marks:
            names[marks["data-nome"]] = exact
        shown, half = number(text)
        allowed = max(half, 0.003 * abs(exact)) if "data-legge" in marks else half * 1.000001
        if not abs(shown - exact) <= allowed:
            errors.append(f"{line}: {text} but {marks['data-conto']} = {exact:.6g}")
        computed += 1
    if computed < 18:
        errors.append(f"only {computed} figures are computed")
    print("\n".join(errors) or f"{computed} figures")
    sys.exit(1 if errors else 0)


if __name__ == "__main__":
    main()
