"""Mutants that stand in one program compute what the text of each alone computes."""
import importlib.machinery
import importlib.util
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
TOOLS = pathlib.Path(__file__).resolve().parents[2] / "tools"
sys.path.insert(0, str(TOOLS))
import mutanti_insieme

SOURCE = '''
int Somma(int a, int b) {
    return a + b * 2 - 7 % b; // not 1 + 1
}
bool Grande(const int* p, int q) {
    return p && *p > 3 || q == 9;
}
double Passi(double x) {
    double y = x, z = 2;
    if (x < 2) y += 1;
    else y -= x / 4;
    for (int i = 0; i < 5; ++i) {
        y *= 1.5;
        z += y > 3 ? 0.5 : x > 1 ? y - 2 : 4;
        z = z + (i > 2 ? y : 0.25) +
            i * 3;
    }
    return y - z;
}
constexpr double modulo = 2.5;
constexpr double doppio = modulo * 2;
constexpr int quanti = 2;
double Costante(double x) {
    const auto quadrato = [](double v) { return v * v + 1; };
    return doppio * x + quadrato(x - 1) / modulo;
}
template <int n> struct Fila { int v[8]; int operator[](int i) const { return v[i] + n; } };
int Scelta(int k) {
    Fila<quanti + 1> v{{4, 5, 6, 7}};
    switch (k) {
    case 1: return v[0] - 1;
    default: return v[quanti] + static_cast<int>(sizeof(v)) / 2;
    }
}
struct Coppia { int a, b; };
int Braccia(int x) {
    const Coppia c{x + 1, 3};
    const char* nome = "a + b";
    return Coppia{c.b, x}.a * c.a - nome[0] + (x >= 2 && nome[1] != 'x');
}
'''
CALLS = ("int tre = 3, sette = 7; std::printf(\"%d %d %d %d %.17g %.17g %.17g %d %d %d %d\\n\", Somma(5, 3), Grande(&tre, 1), "
         "Grande(&sette, 9), Grande(nullptr, 9), Passi(1.25), Passi(2), Costante(0.7), Scelta(1), Scelta(2), Braccia(2), "
         "Braccia(1));")
ALONE = {"quanti = 2", "<quanti + 1>", "case 1:", "struct Fila"}  # arguments of templates, labels, sizes


def tool():
    loader = importlib.machinery.SourceFileLoader("mutanti", str(TOOLS / "mutanti"))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("mutanti", loader))
    loader.exec_module(module)
    return module


class Insieme(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        (self.folder / "m.h").write_text(mutanti_insieme.HEADER)
        mutanti = tool()
        code = mutanti.computing(SOURCE)
        self.places = dict(enumerate(mutanti.places(SOURCE)))
        self.source = mutanti_insieme.Source(SOURCE, code)

    def compiled(self, *options):
        run = subprocess.run(["g++", "-std=c++20", "-w", "-Wno-narrowing", "-fdiagnostics-column-unit=byte",
                              self.folder / "p.cpp", *options], capture_output=True, text=True,
                             env=os.environ | {"LC_ALL": "C"})
        return run.returncode == 0, run.stderr

    def told(self, number=None):
        choice = {} if number is None else {"SAGOMI_MUTANTE": str(number)}
        run = subprocess.run([self.folder / "p", str(number)], capture_output=True, text=True, env=os.environ | choice)
        return run.returncode, run.stdout

    def together(self):
        """The numbers that are built alone; the program of the rest stands in the folder."""
        out = {n for n, place in self.places.items() if not self.source.adds(n, *place)}
        first = mutanti_insieme.FIRST_LINES.format(header=self.folder / "m.h")
        main = f"\n#include <cstdio>\nint main() {{ {CALLS} }}\n"
        out |= mutanti_insieme.fitted(
            {"p.cpp": self.source}, lambda name, text: (self.folder / name).write_text(first + text + main),
            lambda: self.compiled("-o", self.folder / "p"))
        return out

    def one_by_one(self, numbers):
        """What each mutant's own text says, a namespace each."""
        text = "#include <cstdio>\n#include <cstdlib>\n"
        for n in numbers:
            start, end, new = self.places[n]
            text += f"namespace m{n} {{\n{SOURCE[:start]}{new}{SOURCE[end:]}\nvoid Dice() {{ {CALLS} }}\n}}\n"
        text += "int main(int, char** argv) {\nconst int n = std::atoi(argv[1]);\n"
        text += "".join(f"if (n == {n}) m{n}::Dice();\n" for n in numbers) + "}\n"
        (self.folder / "p.cpp").write_text(text)
        good, log = self.compiled("-o", self.folder / "p")
        self.assertTrue(good, log)
        return {n: self.told(n) for n in numbers}

    def test_they_compute_what_they_compute_alone(self):
        alone = self.together()
        for n in alone:
            row = SOURCE.count("\n", 0, self.places[n][0])
            self.assertTrue(any(a in SOURCE.split("\n")[row] for a in ALONE), SOURCE.split("\n")[row])
        numbers = [n for n in self.places if n not in alone]
        self.assertGreater(len(numbers), 40)
        original = self.told()
        seen = {n: self.told(n) for n in numbers}
        expected = self.one_by_one(numbers)
        for n in numbers:
            self.assertEqual(seen[n], expected[n], (n, self.places[n], SOURCE[:self.places[n][0]][-30:]))
        missed = [n for n in numbers if seen[n] == original]
        self.assertTrue(0 < len(missed) < len(numbers) / 4, missed)


if __name__ == "__main__":
    unittest.main()
