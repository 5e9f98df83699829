#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

"""Prints the binary interface that abidw has read from the library, one fact on a line, so that a change of it is a
readable difference: size and base of every class, where its members lie, the places of its virtual functions, every
function with what it returns, and the values of enumerations. What is private shows in the sizes only.

    abi_dump.py ABIDW_XML LIBRARY
"""
import re
import subprocess
import sys
import xml.etree.ElementTree as xml

NAMED = ("class-decl", "union-decl", "enum-decl", "typedef-decl", "type-decl", "namespace-decl")
OWN = re.compile(r"^my_(classes|utils|msgboxes|spellchecker)::")
OWN_SYMBOL = re.compile(r"^_ZN?K?[0-9]+my_")


def read_symbols(library):
    listed = subprocess.run(["nm", "--dynamic", "--defined-only", library], check=True, capture_output=True, text=True)
    mangled = [line.split()[2].split("@")[0] for line in listed.stdout.splitlines()]
    readable = subprocess.run(["c++filt"], input="\n".join(mangled), check=True, capture_output=True, text=True)
    names = dict(zip(mangled, readable.stdout.splitlines()))
    return {symbol: name for symbol, name in names.items() if OWN_SYMBOL.match(symbol)}


tree = xml.parse(sys.argv[1]).getroot()
symbols = read_symbols(sys.argv[2])
types = {element.get("id"): element for element in tree.iter() if element.get("id")}
outer = {child: parent for parent in tree.iter() for child in parent}


def with_outer(element):
    while element is not None:
        yield element
        element = outer.get(element)


def full_name(element):
    return "::".join(reversed([scope.get("name") for scope in with_outer(element) if scope.tag in NAMED]))


def is_private(element):
    return any(scope.get("access") == "private" for scope in with_outer(element))


def type_name(identifier):
    element = types[identifier]
    inner = element.get("type-id")
    if element.tag == "pointer-type-def":
        return type_name(inner) + " *"
    if element.tag == "reference-type-def":
        return type_name(inner) + (" &" if element.get("kind") == "lvalue" else " &&")
    if element.tag == "qualified-type-def":
        return ("const " if element.get("const") == "yes" else "") + type_name(inner)
    return full_name(element) or element.get("name") or element.tag


def facts_of_class(element, name):
    bases = [type_name(base.get("type-id")) for base in element.findall("base-class")]
    yield f"{name}: {int(element.get('size-in-bits')) // 8} bytes" + (f", is a {', '.join(bases)}" if bases else "")
    for member in element.findall("data-member"):
        if not is_private(member) and member.get("static") != "yes":
            variable = member.find("var-decl")
            offset = int(member.get("layout-offset-in-bits")) // 8
            yield f"{name}: {offset:3} {type_name(variable.get('type-id'))} {variable.get('name')}"
    for member in element.findall("member-function"):
        place = int(member.get("vtable-offset", -1))
        if place >= 0:
            function = member.find("function-decl")
            yield f"{name}: virtual {place:2} {symbols.get(function.get('mangled-name'), function.get('name'))}"


def facts():
    for element in types.values():
        name = full_name(element)
        if not OWN.match(name) or element.get("is-declaration-only") or is_private(element):
            continue
        if element.tag == "enum-decl":
            yield from (f"{name}::{value.get('name')} = {value.get('value')}" for value in element.iter("enumerator"))
        elif element.tag == "class-decl":
            yield from facts_of_class(element, name)
    for element in tree.iter():
        symbol = element.get("mangled-name")
        if symbol not in symbols or is_private(element):
            continue
        if element.tag == "function-decl":
            yield f"{symbols[symbol]} -> {type_name(element.find('return').get('type-id'))}"
        else:
            yield f"{symbols[symbol]}: {type_name(element.get('type-id'))}"


print("\n".join(sorted(set(facts()))))
