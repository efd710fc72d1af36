#!/usr/bin/env python3
"""genera.py DATA PICTURES OUT VERSION: the manual of the help's text.

DATA has the help files Sagomi.hlp and GiuntoFlangiato.hlp, PICTURES the folders `figure` (drawings, NAME.svg) and
`schermi` (screens, NAME.png). Writes OUT/manuale.html, the printed manual in one document, and OUT/sito, the site: a
page for each topic, an index and a search that needs no server. A link or a picture that is not there ends it.
"""

import html
import json
import re
import shutil
import struct
import sys
import unicodedata
from collections import Counter
from pathlib import Path
from urllib.parse import quote

from bs4 import BeautifulSoup, NavigableString

FILES = ["Sagomi.hlp", "GiuntoFlangiato.hlp"]
HERE = Path(__file__).resolve().parent
TEXT = 2.9  # mm, size of the texts of a drawing in print
MARKS = re.compile(r"^data-")


def fold(text):
    """Letters as they are compared: without case and accents."""
    return "".join(c for c in unicodedata.normalize("NFKD", text) if not unicodedata.combining(c)).casefold()


def plain(node):
    return " ".join(node.get_text().split())


def place_id(file, name):
    """The id of a place in the documents, which have both help files in one."""
    return f"{Path(file).stem}.{name.replace('*', 'tutti')}"


class Topic:
    """A heading of the first or second rank with what stands below it, up to the next one."""

    def __init__(self, file, heading):
        self.file, self.rank, self.nodes = file, int(heading.name[1]), [heading]
        if heading.find("a", attrs={"name": True}) is None:
            heading.insert(0, BeautifulSoup('<a name="inizio"></a>', "html.parser").a)
        self.name = heading.find("a", attrs={"name": True})["name"]
        self.title = plain(heading)
        self.page = f"{Path(file).stem}-{self.name.replace('*', 'tutti').replace('.', '-')}.html".lower()


def screen_pictures(body, pictures):
    """The picture of a screen goes below the heading, or before the paragraph, that has the screen's name."""
    for png in sorted((pictures / "schermi").glob("[fF]rm*.png")):
        place = body.find("a", attrs={"name": png.stem})
        if place is None:
            continue
        block = place.find_parent(["h1", "h2", "h3", "p"])
        title = plain(block) if block.name != "p" else plain(place.find_next(["b", "i"]) or block)
        figure = screen_figure(png.stem, f"La finestra: {title[0].lower() + title[1:]}", pictures)
        block.insert_after(figure) if block.name != "p" else block.insert_before(figure)


def png_size(path):
    with open(path, "rb") as file:
        return struct.unpack(">II", file.read(24)[16:24])


def screen_figure(name, caption, pictures):
    """A picture of a screen, twice as dense as the screen."""
    width, height = png_size(pictures / "schermi" / f"{name}.png")
    printed = min(0.095 * width, 164, 84 * width / height)  # mm
    text = (f'<figure class="schermo"><img src="schermi/{name}.png" width="{width // 2}" height="{height // 2}" '
            f'style="width:{printed:.0f}mm" alt="{html.escape(caption)}"><figcaption>{html.escape(caption)}</figcaption></figure>')
    return BeautifulSoup(text, "html.parser").figure


def tutorial_pictures(body, pictures):
    """Marks of the tutorial that ask for a picture of the screen as it then is."""
    for n, mark in enumerate(body.select("[data-foto]")):
        block = mark.find_parent("p")
        figure = screen_figure(f"esempio-{n + 1:02}", mark.get("title", ""), pictures)
        mark.decompose()
        block.insert_after(figure)


def drawn_width(svg):
    """The width in print [mm] that gives a drawing's texts their size, where the page has room for it."""
    box = re.search(r'width="([\d.]+)mm" height="([\d.]+)mm"', svg)
    width, height = float(box[1]), float(box[2])
    texts = [float(size) for size in re.findall(r'font-size="([\d.]+)"', svg)]
    scale = TEXT / min(texts) if texts else 0.5
    return min(scale, 150 / width, 95 / height) * width


def drawings(body, pictures):
    """<img src="figura:NAME"> becomes a figure with its words below; several of a paragraph stay together."""
    for image in body.select('img[src^="figura:"]'):
        name = image["src"].partition(":")[2]
        drawing = pictures / "figure" / f"{name}.svg"
        if not drawing.is_file():
            sys.exit(f"no drawing {name}")
        image["src"] = f"figure/{name}.svg"
        image["style"] = f"width:{drawn_width(drawing.read_text('utf-8')):.0f}mm"
    for block in list(body.find_all("p")):
        images = block.find_all("img", recursive=False)
        if images and not plain(block):
            block.name = "figure"
            caption = BeautifulSoup("<figcaption></figcaption>", "html.parser").figcaption
            caption.string = "; ".join(i["alt"].replace("\n", " ") for i in images)
            block.append(caption)


def tables(body):
    """A first row of bold words is the head."""
    for table in body.find_all("table"):
        del table["cellpadding"]
        first = table.find("tr")
        cells = first.find_all("td")
        if all(len(c.find_all("b")) == 1 and plain(c) == plain(c.b) for c in cells):
            for cell in cells:
                cell.name = "th"
                cell.b.unwrap()
            first.wrap(BeautifulSoup("<thead></thead>", "html.parser").thead)


def read(file, data, pictures):
    """The topics of a help file, with pictures, heads of tables, places as ids and without the marks of tests."""
    soup = BeautifulSoup((data / file).read_text("utf-8"), "html.parser")
    body = soup.body
    tutorial_pictures(body, pictures)
    screen_pictures(body, pictures)
    drawings(body, pictures)
    tables(body)
    for node in body.find_all(True):
        for mark in [a for a in node.attrs if MARKS.match(a)]:
            del node[mark]
    topics = []
    for node in list(body.children):
        if isinstance(node, NavigableString):
            continue
        if node.name in ("h1", "h2"):
            topics.append(Topic(file, node))
        else:
            topics[-1].nodes.append(node)
    return topics


def index_words(topics):
    """What stands bold right behind a place, and the titles: word, file, name of the place. A word that stands in
    several topics names its own."""
    words = set()
    for topic in topics:
        words.add((topic.title, topic.file, topic.name, ""))
        for node in topic.nodes:
            for bold in node.find_all("b"):
                before = bold.find_previous_sibling()
                gap = bold.previous_sibling
                if before is not None and before.name == "a" and before.has_attr("name") and \
                        (gap is before or not str(gap).strip()):
                    words.add((plain(bold), topic.file, before["name"], topic.title))
    times = Counter(fold(word) for word, *_ in words)

    def entry(word, file, name, title):
        own = title or ("giunto" if file == FILES[1] else "")
        return (f"{word} ({own})" if times[fold(word)] > 1 and own else word, file, name)

    return sorted({entry(*word) for word in words}, key=lambda w: (fold(w[0]), w[1]))


def places(topics):
    """Which topic has a place."""
    found = {}
    for topic in topics:
        for node in topic.nodes:
            for place in node.find_all("a", attrs={"name": True}):
                found[topic.file, place["name"]] = topic
    return found


def render(topic, link):
    """The text of a topic; `link` gives the address of a place, (file, name)."""
    soup = BeautifulSoup("".join(str(n) for n in topic.nodes), "html.parser")
    for place in soup.find_all("a", attrs={"name": True}):
        place.name = "span"
        place["id"] = place_id(topic.file, place["name"])
        del place["name"]
    for anchor in soup.find_all("a", href=True):
        file, _, name = anchor["href"].partition("#")
        anchor["href"] = link(file or topic.file, name)
    return str(soup)


def printed(topics, version):
    """The manual in one document: cover, contents, the topics, the index."""
    known = places(topics)

    def link(file, name):
        if (file, name) not in known:
            sys.exit(f"no place {file}#{name}")
        return "#" + quote(place_id(file, name))

    contents, parts = [], []
    for topic in topics:
        entry = f'<li><a href="{link(topic.file, topic.name)}">{html.escape(topic.title)}</a>'
        if topic.rank == 1:
            contents.append((entry, []))
        else:
            contents[-1][1].append(entry + "</li>")
        parts.append(render(topic, link))
    listed = "".join(f"{head}<ol>{''.join(items)}</ol></li>" for head, items in contents)
    index = "".join(f'<p><a href="{link(file, name)}">{html.escape(word)}</a></p>'
                    for word, file, name in index_words(topics))
    return f"""<!DOCTYPE html>
<html lang="it"><head><meta charset="utf-8"><title>Manuale di Sagomi {version}</title>
<meta name="generator" content="Sagomi {version}"></head><body>
<header class="copertina"><h1>Manuale di Sagomi</h1>
<p>Sezioni, membrature e collegamenti in acciaio, travi composte acciaio e calcestruzzo</p><p>Versione {version}</p>
<img src="schermi/frmDoppioT.png" alt="La finestra dei doppio T laminati"></header>
<nav class="sommario"><h1>Sommario</h1><ol>{listed}</ol></nav>
{"".join(parts)}
<h1>Indice analitico</h1><nav class="indice">{index}</nav>
</body></html>
"""


def page(title, menu, text, version, around=""):
    return f"""<!DOCTYPE html>
<html lang="it"><head><meta charset="utf-8"><meta name="viewport" content="width=device-width, initial-scale=1">
<title>{html.escape(title)} - Manuale di Sagomi</title><link rel="stylesheet" href="sito.css"></head><body>
<nav class="menu"><p class="testata"><a href="index.html">Manuale di Sagomi</a> <small>{version}</small></p>
<input id="cerca" type="search" placeholder="Cerca" aria-label="Cerca nel manuale"><ul id="trovati" hidden></ul>
{menu}</nav>
<main>{text}{around}</main>
<script src="argomenti.js"></script><script src="cerca.js"></script></body></html>
"""


def site_menu(topics, here):
    items = []
    for topic in topics:
        mark = ' aria-current="page"' if topic is here else ""
        items.append(f'<li class="r{topic.rank}"><a href="{topic.page}"{mark}>{html.escape(topic.title)}</a></li>')
    mark = ' aria-current="page"' if here == "indice" else ""
    items.append(f'<li class="r1"><a href="indice.html"{mark}>Indice analitico</a></li>')
    return f'<ul class="argomenti">{"".join(items)}</ul>'


def around(topics, i):
    """The ways to the topic before and to the one behind."""
    links = []
    for step, words, kind in ((-1, "&larr; ", "prev"), (1, "", "next")):
        if 0 <= i + step < len(topics):
            other = topics[i + step]
            links.append(f'<a rel="{kind}" href="{other.page}">{words}{html.escape(other.title)}'
                         f'{" &rarr;" if step > 0 else ""}</a>')
    return f'<nav class="intorno">{"".join(links)}</nav>'


def write_site(topics, pictures, out, version):
    known = places(topics)

    def link(file, name):
        if (file, name) not in known:
            sys.exit(f"no place {file}#{name}")
        return f"{known[file, name].page}#{quote(place_id(file, name))}"

    shutil.rmtree(out, ignore_errors=True)
    out.mkdir(parents=True)
    for folder in ("figure", "schermi"):
        shutil.copytree(pictures / folder, out / folder)
    for file in ("sito.css", "cerca.js"):
        shutil.copy(HERE / file, out)
    search = []
    for i, topic in enumerate(topics):
        text = page(topic.title, site_menu(topics, topic), render(topic, link), version, around(topics, i))
        (out / topic.page).write_text(text, "utf-8")
        below = " ".join(plain(n) for n in topic.nodes[1:])
        search.append([topic.title, topic.page, fold(topic.title), fold(below)])
    (out / "argomenti.js").write_text(f"const argomenti = {json.dumps(search, ensure_ascii=False)};\n", "utf-8")
    words = "".join(f'<p><a href="{link(file, name)}">{html.escape(word)}</a></p>'
                    for word, file, name in index_words(topics))
    text = f'<h1>Indice analitico</h1><div class="indice">{words}</div>'
    (out / "indice.html").write_text(page("Indice analitico", site_menu(topics, "indice"), text, version), "utf-8")
    shutil.copy(out / topics[0].page, out / "index.html")


def main():
    data, pictures, out, version = Path(sys.argv[1]), Path(sys.argv[2]), Path(sys.argv[3]), sys.argv[4]
    topics = [topic for file in FILES for topic in read(file, data, pictures)]
    write_site(topics, pictures, out / "sito", version)
    (out / "manuale.html").write_text(printed(topics, version), "utf-8")


if __name__ == "__main__":
    main()
