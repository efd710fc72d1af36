"""The check of forms finds a part that stands twice, whatever it is called, and nothing else."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOL = pathlib.Path(__file__).resolve().parents[2] / "tools" / "doppioni_ui"


def boxes(prefix, count, kind="QLineEdit"):
    """A room of boxes; each takes four elements."""
    return f'<widget class="QGroupBox" name="{prefix}"><layout class="QVBoxLayout" name="lo{prefix}">' + "".join(
        f'<item><widget class="{kind}" name="{prefix}{i}"><property name="text"><string>{prefix}</string>'
        "</property></widget></item>" for i in range(count)) + "</layout></widget>"


def form(*rooms):
    return '<ui version="4.0"><widget class="QWidget" name="w">' + "".join(rooms) + "</widget></ui>"


class DoppioniUi(unittest.TestCase):
    def check(self, *forms):
        with tempfile.TemporaryDirectory() as folder:
            files = []
            for i, text in enumerate(forms):
                files.append(str(pathlib.Path(folder) / f"f{i}.ui"))
                pathlib.Path(files[-1]).write_text(text)
            run = subprocess.run([sys.executable, TOOL, *files], capture_output=True, text=True)
            return run.returncode, run.stdout.splitlines()

    def test_two_rooms_in_one_form(self):
        code, found = self.check(form(boxes("a", 10), boxes("b", 10)))
        self.assertEqual(code, 1)
        self.assertEqual(len(found), 1, "the largest part, not its parts")
        self.assertIn("42 elements stand 2 times", found[0])

    def test_two_forms(self):
        code, found = self.check(form(boxes("a", 12)), form(boxes("b", 12), boxes("c", 3)))
        self.assertEqual(code, 1)
        self.assertEqual(len(found), 1)

    def test_small_parts_may_stand_twice(self):
        self.assertEqual(self.check(form(boxes("a", 9), boxes("b", 9)))[0], 0)

    def test_another_class_is_another_part(self):
        self.assertEqual(self.check(form(boxes("a", 12), boxes("b", 12, "QLabel")))[0], 0)


if __name__ == "__main__":
    unittest.main()
