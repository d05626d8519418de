#!/usr/bin/env python3
"""Puts the sources of the documentation site together.

    assemble.py functions.json FOLDER

FOLDER gets pages/, which is the prose of docs/site/pages, the reference with the prototypes of each family, the finder
and the plots; and mkdocs.yml.
"""
import html
import json
import pathlib
import re
import shutil
import sys

import pack
import plots

SITE = pathlib.Path(__file__).resolve().parent
ROOT = SITE.parent.parent


def prototype(function):
    parameters = ", ".join(p["type"] + ("" if p["type"].endswith("*") else " ") + p["name"] for p in function["parameters"])
    return f"{function['returns']} {{}}({parameters});"


def prototypes(functions):
    """A list with one anchor per function, which a page can be linked to without a script."""
    lines = ["", "## Prototypes", "", '<div class="prototypes">']
    for function in functions:
        name = function["name"]
        link = f'<a id="{name}" href="../finder.html#{name}">{name}</a>'
        lines.append(f"<code>{html.escape(prototype(function)).replace('{}', link)}</code>")
    return "\n".join(lines + ["</div>", ""])


def reference(catalogue, folder):
    shutil.copytree(ROOT / "docs" / "reference", folder)
    (folder / "README.md").rename(folder / "index.md")
    for family in catalogue["families"]:
        page = folder / (family["id"] + ".md")
        functions = [f for f in catalogue["functions"] if f["family"] == family["id"]]
        text = page.read_text(encoding="utf-8")
        text = text.replace("## Overlap\n\n", "## Overlap\n\n[What overlap means, and all families](../overlap.md).\n\n")
        page.write_text(text + prototypes(functions), encoding="utf-8")
    for page in folder.glob("*.md"):
        text = page.read_text(encoding="utf-8").replace("Generated from the catalogue of functions; do not edit.\n\n", "")
        page.write_text(text.replace("(README.md", "(index.md"), encoding="utf-8")


def links(text):
    """The prose links to docs/ as it lies in the tree, where it can be read, too; in the site that is beside the pages."""
    return text.replace("](../../reference/README.md", "](reference/index.md").replace("](../../", "](")


def section(match):
    """What stands between [start:name] and [end:name] of a file: the snippets' extension takes whole files only."""
    path, name = match.groups()
    text = (ROOT / path).read_text(encoding="utf-8")
    found = re.search(rf"^[^\n]*\[start:{name}\](?: -->)?\n(.*?)^[^\n]*\[end:{name}\](?: -->)?$", text, re.MULTILINE | re.DOTALL)
    if found is None or not found.group(1).strip():
        sys.exit(f"assemble.py: {path} has no section {name}, or nothing in it")
    return found.group(1).rstrip("\n")


def main():
    catalogue = json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
    folder = pathlib.Path(sys.argv[2])
    pages = folder / "pages"
    shutil.rmtree(pages, ignore_errors=True)
    shutil.copytree(SITE / "pages", pages)
    for page in pages.rglob("*.md"):
        text = page.read_text(encoding="utf-8")
        if page.parent == pages:
            text = links(text)
        page.write_text(re.sub(r'^--8<-- "([^":]+):([\w-]+)"$', section, text, flags=re.MULTILINE), encoding="utf-8")
    reference(catalogue, pages / "reference")
    for file in ("layouts.svg", "python.svg", "python-scaling.svg", "python-benchmarks.md"):
        shutil.copy(ROOT / "docs" / file, pages / file)
    shutil.copytree(SITE / "finder", pages / "assets")
    pack.write(catalogue, pages / "assets" / "catalogue.js")
    plots.write(SITE / "data" / "benchmarks.json", pages / "plots")
    config = (SITE / "mkdocs.yml").read_text(encoding="utf-8").replace("@ROOT@", str(ROOT))
    (folder / "mkdocs.yml").write_text(config, encoding="utf-8")


if __name__ == "__main__":
    main()
