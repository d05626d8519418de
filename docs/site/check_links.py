#!/usr/bin/env python3
"""Checks the built site: every link and picture leads to a file of it, every fragment to an anchor or to a function,
nothing is fetched from elsewhere, no block of code is empty, and every name of a function, or beginning of one, exists.

    check_links.py SITE_FOLDER
"""
import html.parser
import pathlib
import re
import sys
import urllib.parse


class Page(html.parser.HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.links, self.fetched, self.anchors = [], [], set()
        self.names = set()
        self.code, self.blocks = None, []  # the text of the block of code that is being read; of all blocks
        self.feed(text)

    def handle_endtag(self, tag):
        if tag == "pre" and self.code is not None:
            self.blocks.append(self.code)
            self.code = None

    def handle_data(self, data):
        if self.code is not None:
            self.code += data
        # Patterns, as vonk{Add,Sub}, are the generator's; it checks them.
        self.names.update(re.findall(r"\bvonk[A-Z0-9]\w*\b(?![{*?])", data))

    def handle_starttag(self, tag, attributes):
        found = dict(attributes)
        if tag == "pre":
            self.code = ""
        if found.get("id"):
            self.anchors.add(found["id"])
        if tag == "a" and found.get("href"):
            self.links.append(found["href"])
        if tag in ("img", "script", "iframe", "source") and found.get("src"):
            self.fetched.append(found["src"])
        if tag == "link" and found.get("href") and found.get("rel") not in ("canonical",):
            self.fetched.append(found["href"])


def main():
    root = pathlib.Path(sys.argv[1]).resolve()
    pages = {path: Page(path.read_text(encoding="utf-8")) for path in root.rglob("*.html")}
    functions = set(re.findall(r'\["(vonk\w+)"', (root / "assets" / "catalogue.js").read_text(encoding="utf-8")))
    beginnings = {"_".join(name.split("_")[:k]) for name in functions for k in range(1, 6)}
    beginnings |= {"vonkGetLibVersion", "vonkOk", "vonkErrSize", "vonkErrNullPtr", "vonkErrSingular", "vonkErrNotPosDef", "vonkErrStride", "vonkStatusText",
                   "vonkk3"}
    errors = []
    for path, page in pages.items():
        for name in sorted(page.names - functions - beginnings):
            errors.append(f"{path.relative_to(root)}: {name} is no function")
        empty = sum(1 for block in page.blocks if not block.strip())
        if empty:
            errors.append(f"{path.relative_to(root)}: {empty} blocks of code are empty")
        if path.name == "404.html":  # its links begin at the root of a server
            continue
        where = path.relative_to(root)
        for target in page.fetched:
            if re.match(r"(https?:)?//", target):
                errors.append(f"{where}: fetches {target}")
        for target in page.links + page.fetched:
            parts = urllib.parse.urlsplit(target)
            if parts.scheme or parts.netloc:
                continue
            file = (path.parent / urllib.parse.unquote(parts.path)).resolve() if parts.path else path
            if not file.is_file():
                errors.append(f"{where}: {target} is not there")
                continue
            fragment = urllib.parse.unquote(parts.fragment)
            if fragment and file in pages and fragment not in pages[file].anchors:
                if not (file.name == "finder.html" and fragment in functions):
                    errors.append(f"{where}: {target} has no such anchor")
    anchors = sum(len(functions & page.anchors) for page in pages.values())
    if anchors != len(functions) or not functions:
        errors.append(f"{anchors} anchors of {len(functions)} functions")
    for error in errors:
        print("FAILED:", error)
    print(f"{len(pages)} pages, {sum(len(p.links) for p in pages.values())} links, {anchors} functions")
    sys.exit(1 if errors else 0)


if __name__ == "__main__":
    main()
