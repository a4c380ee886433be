#!/usr/bin/env python3
"""Compiles the help: the pages that the project file lists, with a table of contents made of their headings."""

import argparse
import html
import pathlib
import re
import shutil
import subprocess
import sys

HEADING = re.compile(r'<h([12])>(?:<a name="([^"]*)"></a>)?(.*?)</h\1>', re.S)


def listed_files(project):
    """The files of the [FILES] part, in their order."""
    part = re.split(r"^\[FILES\]\s*$", project.read_text(encoding="utf-8"), flags=re.M)[1]
    return [line.strip() for line in part.splitlines() if line.strip()]


def headings(page):
    """(level, anchor, title) of a page's <h1> and of each <h2> that has an anchor."""
    for level, anchor, title in HEADING.findall(page.read_text(encoding="utf-8")):
        if level == "1" or anchor:
            yield int(level), anchor, html.unescape(re.sub(r"<[^>]*>", "", title))


def ascii_html(text):
    """The contents file names no encoding: what isn't ASCII stands as character references."""
    return html.escape(text).encode("ascii", "xmlcharrefreplace").decode("ascii")


def contents(folder, pages):
    lines = ["<!DOCTYPE HTML>", "<html><body>", "<ul>"]
    for page in pages:
        entries = list(headings(folder / page))
        if not entries or entries[0][0] != 1:
            sys.exit(f"{page}: the page must begin with an <h1>")
        inner = False
        for level, anchor, title in entries:
            if level == 2 and not inner:
                lines.append("<ul>")
                inner = True
            address = f"{page}#{anchor}" if anchor else page
            lines.append(
                '<li><object type="text/sitemap">'
                f'<param name="Name" value="{ascii_html(title)}"><param name="Local" value="{address}"></object>'
            )
        if inner:
            lines.append("</ul>")
    return "\n".join(lines + ["</ul>", "</body></html>", ""])


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--compiler", required=True, help="chmcmd")
    parser.add_argument("--work", required=True, type=pathlib.Path, help="folder for the files in between")
    parser.add_argument("project", type=pathlib.Path)
    parser.add_argument("output", type=pathlib.Path)
    options = parser.parse_args()

    source = options.project.parent
    files = listed_files(options.project)
    unlisted = sorted(f.name for f in source.glob("*.html") if f.name not in files)
    if unlisted:
        sys.exit(f"{options.project.name} does not list {', '.join(unlisted)}")
    work = options.work / "pages"
    shutil.rmtree(work, ignore_errors=True)
    work.mkdir(parents=True)
    for name in [options.project.name, *files]:
        shutil.copyfile(source / name, work / name)
    pages = [name for name in files if name.endswith(".html")]
    (work / "Kestrelix.hhc").write_text(contents(source, pages), encoding="ascii")
    compiled = subprocess.run(
        [options.compiler, "--no-html-scan", options.project.name], cwd=work, capture_output=True, text=True
    )
    result = work / "Kestrelix.chm"
    if compiled.returncode != 0 or not result.exists():
        sys.exit(compiled.stdout + compiled.stderr)
    shutil.copyfile(result, options.output)


if __name__ == "__main__":
    main()
