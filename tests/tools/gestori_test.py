"""The check of event handlers finds an override without its guard, wherever its body stands."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOL = pathlib.Path(__file__).resolve().parents[2] / "tools" / "gestori"


class Gestori(unittest.TestCase):
    def check(self, header, source=""):
        with tempfile.TemporaryDirectory() as folder:
            (pathlib.Path(folder) / "A.h").write_text(header)
            (pathlib.Path(folder) / "A.cpp").write_text(source)
            run = subprocess.run([sys.executable, TOOL, folder], capture_output=True, text=True)
            return run.returncode, run.stdout.strip()

    def declared(self, source):
        return self.check("class A : public QWidget {\n    void keyPressEvent(QKeyEvent* e) override;\n};\n", source)

    def test_a_body_without_the_guard(self):
        code, found = self.declared("void A::keyPressEvent(QKeyEvent* e) {\n    Apre();\n}\n")
        self.assertEqual(code, 1)
        self.assertTrue(found.endswith("A::keyPressEvent"), found)

    def test_a_body_inside_the_guard(self):
        body = "void A::keyPressEvent(QKeyEvent* e) {\n    EventoProtetto([this] { if (x) { Apre(); } });\n}\n"
        self.assertEqual(self.declared(body), (0, ""))

    def test_the_guard_of_another_handler_does_not_count(self):
        body = "void A::keyPressEvent(QKeyEvent*) {}\nvoid A::altro() {\n    EventoProtetto([] {});\n}\n"
        self.assertEqual(self.declared(body)[0], 1)

    def test_a_body_in_the_class(self):
        header = ("class A : public QObject {\n    bool eventFilter(QObject* o, QEvent* e) override {\n"
                  "        return %s;\n    }\n};\n")
        self.assertEqual(self.check(header % "EventoProtetto([] { return true; })"), (0, ""))
        self.assertEqual(self.check(header % "true")[0], 1)

    def test_a_painter_of_cells(self):
        header = ("class A : public QStyledItemDelegate {\n    void paint(QPainter* p, const QStyleOptionViewItem& o,\n"
                  "               const QModelIndex& i) const override;\n};\n")
        body = "void A::paint(QPainter* p, const QStyleOptionViewItem& o, const QModelIndex& i) const {%s}\n"
        self.assertEqual(self.check(header, body % "DipintoProtetto(w, [] {});"), (0, ""))
        self.assertEqual(self.check(header, body % "")[0], 1)

    def test_a_tree_without_handlers_is_suspect(self):
        self.assertEqual(self.check("class A {};\n")[0], 1)


if __name__ == "__main__":
    unittest.main()
