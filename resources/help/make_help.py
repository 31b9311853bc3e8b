#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes the help: make_help.py CAPTIONS TEXTS PAGES PROJECT

Takes the pages of this folder, gives each its style sheet, the same list of pages and an anchor for
every heading, adds the page of messages and the index, and writes them twice: to PAGES as the browser shows them, and to
PROJECT, without sheet and list, with the project file that the help is compiled from.

CAPTIONS lists the captions of all windows with the pages that explain them. TEXTS is the folder of
the language's texts, where the messages stand. contents.txt orders the pages; a page that it does
not name comes last.
"""
import html
import pathlib
import re
import sys

HERE = pathlib.Path(__file__).resolve().parent
NAMESPACE = "varnholt.help"
FOLDER = "help"


def anchor_of(words):
    return re.sub(r"[^a-z0-9]+", "-", words.lower()).strip("-")


def plain(markup):
    return html.unescape(re.sub(r"<[^>]+>", " ", markup)).strip()


class Page:
    """One page: its title, what it says, and its headings as (anchor, words)."""

    def __init__(self, name, text):
        self.name = name
        self.title = plain(re.search(r"<title>(.*?)</title>", text, re.S).group(1))
        main = re.search(r"<main>(.*)</main>", text, re.S).group(1)
        # Cells of words stand at the left, wherever figures stand at the right.
        main = re.sub(r"<(td|th)(?=[ >])(?![^>]*class=)", r'<\1 class="words"', main)
        self.main = re.sub(r"<h2>(.*?)</h2>", self._with_anchor, main, flags=re.S)
        self.headings = [(a, plain(w)) for a, w in
                         re.findall(r'<h2 id="([^"]+)">(.*?)</h2>', self.main, re.S)]

    @staticmethod
    def _with_anchor(match):
        return f'<h2 id="{anchor_of(plain(match.group(1)))}">{match.group(1)}</h2>'

    def keywords(self):
        yield self.title, self.name
        for anchor, words in self.headings:
            yield words, f"{self.name}#{anchor}"
        for anchor, words in re.findall(r'<(?:tr|dt|h3) id="([^"]+)">(?:<th[^>]*>)?(.*?)</',
                                        self.main, re.S):
            yield plain(words), f"{self.name}#{anchor}"


def document(page, navigation="", sheet=""):
    return ('<!DOCTYPE html>\n<html lang="en">\n<head>\n<meta charset="utf-8">\n'
            f"<title>{html.escape(page.title)}</title>\n"
            f"{sheet}</head>\n<body>\n"
            f"{navigation}<main>{page.main}</main>\n</body>\n</html>\n")


def navigation_for(page, sections):
    lines = ["<nav>"]
    for title, pages in sections:
        if title:
            lines.append(f"  <b>{html.escape(title)}</b>")
        for other in pages:
            here = ' class="here"' if other is page else ""
            lines.append(f'  <a href="{other.name}"{here}>{html.escape(other.title)}</a>')
    return "\n".join(lines) + "\n</nav>\n"


def texts_in(folder):
    """Number and text of every text of the language."""
    for file in sorted(folder.glob("*.txt")):
        for line in file.read_text(encoding="utf-8").splitlines():
            match = re.match(r"(\d+)\s+(.*)", line)
            if match:
                yield int(match.group(1)), match.group(2)


def is_message(number, text):
    """A sentence that a box or a line of a window shows, not a line of the status bar."""
    return not 1300 <= number <= 1349 and len(text) > 20 and text.rstrip()[-1] in ".?!"


def shown_message(text):
    text = text.replace("\\n", " ").replace("\\r", " ").replace("\\t", " ")
    return re.sub(r"\s+", " ", re.sub(r"%\d", "…", text)).strip()


def explanations():
    """What messages.txt says of texts by number, and of run-time errors as (number, words, help)."""
    texts, errors = {}, []
    for line in (HERE / "messages.txt").read_text(encoding="utf-8").splitlines():
        if not line or line.startswith("#"):
            continue
        name, *words = line.split("\t")
        if name.startswith("error "):
            errors.append((int(name.split()[1]), *words))
        else:
            texts[int(name)] = words[0]
    return texts, errors


def messages_page(folder):
    explained, errors = explanations()
    entries = [(f"m{number}", shown_message(text), explained.get(number, ""))
               for number, text in texts_in(folder)
               if (is_message(number, text) or number in explained)
               and explained.get(number) != "-"]
    entries += [(f"error-{number}", f"{number} - {words}", meaning)
                for number, words, meaning in errors]
    rows = [f'<dt id="{place}">{html.escape(words)}</dt><dd>{meaning}</dd>'
            for place, words, meaning in entries]
    body = ("<title>Messages</title><main>\n<h1>Messages</h1>\n<p>What boxes and lines of the"
            " windows say, and what can be done. Where a message names a file or a figure, …"
            " stands for it.</p>\n<dl>\n" + "\n".join(rows) + "\n</dl>\n</main>")
    keywords = [(words[:120], f"messages.html#{place}") for place, words, _ in entries]
    return Page("messages.html", body), keywords


FILTER = """<p><input id="look" type="search" placeholder="Look for" aria-label="Look for" hidden></p>
<script>
const look = document.getElementById("look");
look.hidden = false;
look.addEventListener("input", () => {
  const words = look.value.toLowerCase();
  for (const entry of document.querySelectorAll("#index li"))
    entry.hidden = !entry.textContent.toLowerCase().includes(words);
});
</script>
"""


def index_page(keywords):
    letters = {}
    for words, target in keywords:
        first = next((c for c in words.upper() if c.isalnum()), "#")
        letters.setdefault(first if first.isalpha() else "0-9", []).append((words, target))
    body = "<title>Index</title><main>\n<h1>Index</h1>\n" + FILTER + '<div id="index">\n'
    for letter, entries in sorted(letters.items()):
        body += f'<h2 id="letter-{letter.lower()}">{letter}</h2>\n<ul>\n'
        for words, target in entries:
            body += f'<li><a href="{target}">{html.escape(words)}</a></li>\n'
        body += "</ul>\n"
    return Page("search.html", body + "</div>\n</main>")


def sections_of(pages):
    sections, left = [], dict(pages)
    for line in (HERE / "contents.txt").read_text(encoding="utf-8").splitlines():
        if not line.strip() or line.startswith("#"):
            continue
        if line.startswith(" "):
            if line.strip() in left:
                sections[-1][1].append(left.pop(line.strip()))
        else:
            sections.append(("" if line == "-" else line.strip(), []))
    sections[-1][1].extend(left[name] for name in sorted(left))
    return [(title, found) for title, found in sections if found]


def project(sections, keywords, files):
    def ref(target):
        return html.escape(target, quote=True)

    lines = ['<?xml version="1.0" encoding="UTF-8"?>', '<QtHelpProject version="1.0">',
             f"<namespace>{NAMESPACE}</namespace>", f"<virtualFolder>{FOLDER}</virtualFolder>",
             "<filterSection>", "<toc>"]
    for title, pages in sections:
        if title:
            lines.append(f'<section title="{ref(title)}" ref="{pages[0].name}">')
        for page in pages:
            lines.append(f'<section title="{ref(page.title)}" ref="{page.name}">')
            for anchor, words in page.headings if page.name != "search.html" else []:
                lines.append(f'<section title="{ref(words)}" ref="{page.name}#{anchor}"/>')
            lines.append("</section>")
        if title:
            lines.append("</section>")
    lines.append("</toc>")
    lines.append("<keywords>")
    for words, target in keywords:
        lines.append(f'<keyword name="{ref(words)}" ref="{ref(target)}"/>')
    lines.append("</keywords>")
    lines.append("<files>")
    lines += [f"<file>{name}</file>" for name in files]
    lines += ["</files>", "</filterSection>", "</QtHelpProject>", ""]
    return "\n".join(lines)


def unique(keywords):
    seen = set()
    for words, target in sorted(keywords, key=lambda k: (k[0].lower(), k[1])):
        if (words.lower(), target) not in seen:
            seen.add((words.lower(), target))
            yield words, target


def clear(folder):
    folder.mkdir(parents=True, exist_ok=True)
    for old in folder.iterdir():
        if old.suffix in (".html", ".css", ".qhp"):
            old.unlink()


def main():
    captions, texts, pages_folder, project_folder = map(pathlib.Path, sys.argv[1:5])
    pages = {file.name: Page(file.name, file.read_text(encoding="utf-8"))
             for file in HERE.glob("*.html")}
    messages, keywords = messages_page(texts)
    pages[messages.name] = messages
    for page in pages.values():
        keywords += page.keywords()
    for line in captions.read_text(encoding="utf-8").splitlines():
        caption, target = line.split("\t")
        keywords.append((caption.replace("&", ""), target))
    keywords = list(unique(keywords))
    index = index_page(keywords)
    pages[index.name] = index
    sections = sections_of(pages)

    clear(pages_folder)
    clear(project_folder)
    sheet = f"<style>\n{(HERE / 'help.css').read_text()}</style>\n"
    for page in pages.values():
        (pages_folder / page.name).write_text(
            document(page, navigation_for(page, sections), sheet), encoding="utf-8")
        (project_folder / page.name).write_text(document(page), encoding="utf-8")
    (project_folder / "vht.qhp").write_text(
        project(sections, keywords, sorted(pages)), encoding="utf-8")
    (project_folder / "index.txt").write_text(
        "".join(f"{words}\t{target}\n" for words, target in keywords), encoding="utf-8")


main()
