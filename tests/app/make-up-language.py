#!/usr/bin/env python3
"""make-up-language.py ENGLISH.ts MADE_UP.ts: a language that is written from the right: the English texts in
Hebrew letters, in which placeholders, tags and letters of access are what they were."""
import re
import sys
import xml.etree.ElementTree as ElementTree

HEBREW = "אבגדהוזחטיכלמנסעפצקרשת"
LEFT_ALONE = re.compile(r"%L?[0-9n]|<[^>]*>|&[a-z]+;")


def letters(text):
    return re.sub(r"[A-Za-z]", lambda found: HEBREW[ord(found[0].lower()) % len(HEBREW)], text)


def turned(text):
    parts, at = [], 0
    for found in LEFT_ALONE.finditer(text):
        parts += [letters(text[at:found.start()]), found[0]]
        at = found.end()
    return "".join(parts) + letters(text[at:])


english, made_up = sys.argv[1:]
tree = ElementTree.parse(english)
# A language that has one form for all numbers.
tree.getroot().set("language", "fa")
for message in tree.iter("message"):
    forms = message.findall(".//numerusform")
    for form in forms[:-1]:
        message.find("translation").remove(form)
    text = forms[-1] if forms else message.find("translation")
    text.text = turned(text.text or "")
tree.write(made_up, encoding="utf-8", xml_declaration=True)
