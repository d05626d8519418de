#!/usr/bin/env python3
"""Writes the bill of materials of a release, SPDX 2.3 as JSON, or checks one.

    sbom.py FOLDER VERSION COMMIT SECONDS      of the files in FOLDER, at the commit's date, on standard output
    sbom.py --check FILE                       with the files beside it
"""
import datetime
import hashlib
import json
import pathlib
import re
import sys
import uuid

SUMMARIES = {
    ".orig.tar.xz": "Source, as Debian's tools name it", ".debian.tar.xz": "What makes Debian packages of the source",
    ".dsc": "Description of the Debian source package",
    ".tar.xz": "Source", ".whl": "Python package, with the library for all instruction sets", ".zip": "Windows DLL, headers, examples",
    "libvonkk3-4": "Library for all instruction sets", "libvonkk3-dev": "Headers, Fortran modules, man pages, CMake package",
    "libvonkk3-doc": "Documentation and examples", "python3-vonkk3": "Python package, for the library of libvonkk3-4",
}
# What a file needs or holds that is not of this project. The library itself has no entry: it imports nothing.
OTHERS = {
    "numpy": ("BSD-3-Clause", "https://pypi.org/project/numpy/"),
    "mkdocs-material": ("MIT", "https://packages.debian.org/mkdocs-material"),
}
RELATIONS = [("python3-vonkk3", "DEPENDS_ON", "numpy"), (".whl", "DEPENDS_ON", "numpy"),
             ("libvonkk3-doc", "CONTAINS", "mkdocs-material")]


def kind(name):
    return next(key for key in SUMMARIES if name.endswith(key) or name.startswith(key + "_"))


def identifier(name):
    return "SPDXRef-" + re.sub(r"[^A-Za-z0-9.-]", "-", name)


def package(name, version, licence, location, **more):
    return {"SPDXID": identifier(name), "name": name, **({"versionInfo": version} if version else {}),
            "downloadLocation": location, "filesAnalyzed": False, "licenseConcluded": licence, "licenseDeclared": licence,
            "copyrightText": "NOASSERTION", **more}


def bill(folder, version, commit, seconds):
    created = datetime.datetime.fromtimestamp(seconds, datetime.timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ")
    files = sorted(path for path in folder.iterdir() if "vonkk3" in path.name and not path.name.endswith(".spdx.json"))
    digests = {path.name: hashlib.sha256(path.read_bytes()).hexdigest() for path in files}
    packages = [package(name, version, "MIT", "NOASSERTION", summary=SUMMARIES[kind(name)], packageFileName=name,
                        supplier="Organization: The vonkk3 authors",
                        checksums=[{"algorithm": "SHA256", "checksumValue": digest}]) | {"copyrightText": "2026 The vonkk3 authors"}
                for name, digest in digests.items()]
    relations = [("SPDXRef-DOCUMENT", "DESCRIBES", identifier(name)) for name in digests]
    source = next(name for name in digests if kind(name) == ".tar.xz")
    relations += [(identifier(name), "GENERATED_FROM", identifier(source)) for name in digests if name != source]
    relations += [(identifier(name), "DEPENDS_ON", identifier(library)) for name in digests for library in digests
                  if kind(name) in ("libvonkk3-dev", "python3-vonkk3") and kind(library) == "libvonkk3-4"]
    others = [(name, what, other) for name in digests for whose, what, other in RELATIONS if kind(name) == whose]
    packages += [package(other, None, *OTHERS[other]) for other in sorted({other for _, _, other in others})]
    relations += [(identifier(name), what, identifier(other)) for name, what, other in others]
    unique = uuid.uuid5(uuid.NAMESPACE_URL, commit + json.dumps(digests))
    return {"spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT", "name": f"vonkk3-{version}",
            "documentNamespace": f"https://spdx.org/spdxdocs/vonkk3-{version}-{unique}",
            "creationInfo": {"created": created, "creators": ["Organization: The vonkk3 authors"]},
            "comment": f"Built from commit {commit}. The library needs and imports nothing, on Linux and on Windows.",
            "packages": packages,
            "relationships": [{"spdxElementId": a, "relationshipType": what, "relatedSpdxElement": b} for a, what, b in relations]}


def words(pattern):
    return {"type": "string", "pattern": pattern}


def listed(properties, least=1, **more):
    return {"type": "array", "minItems": least,
            "items": {"type": "object", "properties": properties, "required": sorted(properties), **more}}


# What SPDX 2.3 asks of a document as JSON, of the parts that are written here; and nothing else may be there.
LICENCE = words("^(NOASSERTION|MIT|BSD-3-Clause)$")
SCHEMA = {
    "type": "object", "additionalProperties": False,
    "required": ["spdxVersion", "dataLicense", "SPDXID", "name", "documentNamespace", "creationInfo", "packages", "relationships"],
    "properties": {
        "spdxVersion": {"const": "SPDX-2.3"}, "dataLicense": {"const": "CC0-1.0"}, "SPDXID": {"const": "SPDXRef-DOCUMENT"},
        "name": {"type": "string"}, "documentNamespace": words("^https://[^#]+$"), "comment": {"type": "string"},
        "creationInfo": {
            "type": "object", "required": ["created", "creators"],
            "properties": {"created": words(r"^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ$"),
                           "creators": {"type": "array", "minItems": 1, "items": words("^(Person|Organization|Tool): .+")}}},
        "packages": {
            "type": "array", "minItems": 1,
            "items": {"type": "object", "additionalProperties": False,
                      "required": ["SPDXID", "name", "downloadLocation", "filesAnalyzed", "licenseConcluded", "licenseDeclared",
                                   "copyrightText"],
                      "properties": {
                          "SPDXID": words(r"^SPDXRef-[A-Za-z0-9.-]+$"), "name": words("."), "versionInfo": words("."),
                          "downloadLocation": words("^(NOASSERTION|NONE|https://.+)$"), "filesAnalyzed": {"const": False},
                          "licenseConcluded": LICENCE, "licenseDeclared": LICENCE, "copyrightText": words("."),
                          "summary": words("."), "packageFileName": words("."), "supplier": words("^Organization: .+"),
                          "checksums": listed({"algorithm": {"const": "SHA256"}, "checksumValue": words("^[0-9a-f]{64}$")})}}},
        "relationships": listed({"spdxElementId": words("^SPDXRef-"), "relatedSpdxElement": words("^SPDXRef-"),
                                 "relationshipType": words("^(DESCRIBES|GENERATED_FROM|DEPENDS_ON|CONTAINS)$")},
                                additionalProperties=False)}}


def check(path):
    import jsonschema  # needed by this alone
    document = json.loads(path.read_text(encoding="utf-8"))
    jsonschema.Draft7Validator(SCHEMA).validate(document)
    names = [entry["SPDXID"] for entry in document["packages"]]
    wrong = [f"{name}: twice" for name in set(names) if names.count(name) > 1]
    wrong += [f"{end}: in a relationship, but no package" for relation in document["relationships"]
              for end in (relation["spdxElementId"], relation["relatedSpdxElement"]) if end not in [*names, "SPDXRef-DOCUMENT"]]
    described = {entry["packageFileName"]: entry for entry in document["packages"] if "packageFileName" in entry}
    beside = {file.name for file in path.parent.iterdir() if "vonkk3" in file.name} - {path.name}
    wrong += [f"{name}: described or there, but not both" for name in sorted(beside ^ set(described))]
    wrong += [f"{name}: another checksum" for name in sorted(beside & set(described))
              if hashlib.sha256((path.parent / name).read_bytes()).hexdigest() != described[name]["checksums"][0]["checksumValue"]]
    if wrong:
        sys.exit("\n".join(wrong))
    print(f"{path.name}: {len(described)} files, {len(names) - len(described)} packages of others")


if sys.argv[1:2] == ["--check"] and len(sys.argv) == 3:
    check(pathlib.Path(sys.argv[2]))
elif len(sys.argv) == 5:
    print(json.dumps(bill(pathlib.Path(sys.argv[1]), sys.argv[2], sys.argv[3], int(sys.argv[4])), indent=2))
else:
    sys.exit(__doc__)
