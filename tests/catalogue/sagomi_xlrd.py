"""The workbook beside the program, read by xlrd: an implementation of the format that shares nothing with ours.

Every cell against the tables of figures, and the looks of the sheets: bold headings that stay in place, columns
wide enough for what they show, number formats.

    sagomi_xlrd.py <Sagomi.xls> <folder of the tables>

Leaves with 77 (skipped) where xlrd is not installed.
"""

import csv
import os
import sys

try:
    import xlrd
except ImportError:
    print("xlrd is not installed")
    sys.exit(77)

UNITS = {
    "designation": "designation", "g_kg_m": "g (Kg/m)", "h_mm": "h (mm)", "b_mm": "b (mm)", "b1_mm": "b1 (mm)",
    "b2_mm": "b2 (mm)", "t_mm": "t (mm)", "tw_mm": "tw (mm)", "tf_mm": "tf (mm)", "tf1_mm": "tf1 (mm)",
    "tf2_mm": "tf2 (mm)", "r_mm": "r (mm)", "r1_mm": "r1 (mm)", "r2_mm": "r2 (mm)", "A_cm2": "A (cm2)",
    "Iy_cm4": "Iy (cm4)", "Wy_cm3": "Wy (cm3)", "Wy1_cm3": "Wy1 (cm3)", "Wy2_cm3": "Wy2 (cm3)",
    "Wply_cm3": "Wpl,y (cm3)", "iy_cm": "iy (cm)", "Iz_cm4": "Iz (cm4)", "Wz_cm3": "Wz (cm3)",
    "Wplz_cm3": "Wpl,z (cm3)", "iz_cm": "iz (cm)", "IT_cm4": "IT (cm4)", "Iw_cm6": "Iw (cm6)",
    "Iu_cm4": "Iu (cm4)", "iu_cm": "iu (cm)", "Iv_cm4": "Iv (cm4)", "iv_cm": "iv (cm)",
}
WELDED = {"HSE", "HSL", "HSU", "HSH", "ISE", "HSA", "HSD"}
SMALL_WEIGHT = {"UPN", "UAP", "L Uguali", "L Disuguali"}


def heading(column, sheet):
    if column == "designation" and sheet in WELDED:
        return "Designation"
    if column == "g_kg_m" and sheet in SMALL_WEIGHT:
        return "g (kg/m)"
    return UNITS[column]


def table(folder, sheet):
    with open(os.path.join(folder, sheet.replace(" ", "_") + ".csv"), encoding="utf-8", newline="") as f:
        rows = list(csv.reader(f))
    if rows[0][-1] == "e_cm":
        rows = [row[:-1] for row in rows]
    return rows


def check_cells(sheet, rows):
    assert (sheet.nrows, sheet.ncols) == (len(rows), len(rows[0])), (sheet.name, sheet.nrows, sheet.ncols)
    for c, column in enumerate(rows[0]):
        assert sheet.cell_value(0, c) == heading(column, sheet.name), (sheet.name, column, sheet.cell_value(0, c))
    for r in range(1, len(rows)):
        for c, text in enumerate(rows[r]):
            cell = sheet.cell(r, c)
            want = text if c == 0 else float(text)
            kind = xlrd.XL_CELL_TEXT if c == 0 else xlrd.XL_CELL_NUMBER
            assert (cell.ctype, cell.value) == (kind, want), (sheet.name, r, c, cell, want)


def decimals(format_string):
    return len(format_string.partition(".")[2])


def check_looks(book, sheet):
    assert sheet.panes_are_frozen == 1 and sheet.horz_split_pos == 1 and sheet.vert_split_pos == 0, sheet.name
    assert sheet.horz_split_first_visible == 1
    for c in range(sheet.ncols):
        style = book.xf_list[sheet.cell_xf_index(0, c)]
        font = book.font_list[style.font_index]
        assert font.weight == 700 and font.name == "Arial" and font.height == 200, (sheet.name, c)
        assert style.border.bottom_line_style == 1
        body = book.xf_list[sheet.cell_xf_index(1, c)]
        assert book.font_list[body.font_index].weight == 400
        form = book.format_map[body.format_key].format_str
        width = sheet.colinfo_map[c].width / 256
        assert width > len(sheet.cell_value(0, c)), (sheet.name, c, width)
        for r in range(1, sheet.nrows):
            check_shown(sheet, r, c, form, width)


def check_shown(sheet, r, c, form, width):
    """What a format shows is the whole value, and it fits the column."""
    value = sheet.cell_value(r, c)
    if c == 0:
        shown = value
    elif form == "General":
        shown = "%.11g" % value
    else:
        shown = "%.*f" % (decimals(form), value)
        assert float(shown) == value, (sheet.name, r, c, form, value)
    assert len(shown) < width, (sheet.name, r, c, shown, width)


def main(workbook, folder):
    book = xlrd.open_workbook(workbook, formatting_info=True, verbosity=0)
    assert book.biff_version == 80 and book.nsheets == 27, (book.biff_version, book.nsheets)
    names = {n[:-4].replace("_", " ") for n in os.listdir(folder) if n.endswith(".csv") and n != "notes.csv"}
    assert set(book.sheet_names()) == names, set(book.sheet_names()) ^ names
    total = 0
    for sheet in book.sheets():
        check_cells(sheet, table(folder, sheet.name))
        check_looks(book, sheet)
        total += sheet.nrows - 1
    assert total == 1213, total
    assert [s.sheet_selected for s in book.sheets()] == [1] + [0] * 26
    print(book.nsheets, "sheets,", total, "rows")


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
