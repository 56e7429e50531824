"""A plain RTF writer: a heading, paragraphs and bulleted lines, in two fonts
and a few colours, which every rich text control shows alike."""

from artlib import channels, put_text


def page(accent, ink, *blocks):
    """blocks are results of heading, lead, text, point and note."""
    colours = "".join("\\red{}\\green{}\\blue{};".format(*channels(c)) for c in (accent, ink, "#6B7A88"))
    head = (
        "{\\rtf1\\ansi\\ansicpg1252\\deff0\n"
        "{\\fonttbl{\\f0\\fswiss\\fcharset0 Tahoma;}{\\f1\\froman\\fcharset0 Georgia;}}\n"
        "{\\colortbl ;" + colours + "}\n"
        "\\viewkind4\\uc1\n"
    )
    return head + "\n".join(blocks) + "\n}\n"


def heading(words):
    return f"\\pard\\sa60\\cf1\\f1\\b\\fs34 {words}\\b0\\par"


def lead(words):
    return f"\\pard\\sa140\\cf3\\f1\\i\\fs21 {words}\\i0\\par"


def text(words):
    return f"\\pard\\sa100\\cf2\\f0\\fs18 {words}\\par"


def point(words):
    return f"\\pard\\fi-200\\li260\\tx260\\sa40\\cf1\\f0\\fs18 \\bullet\\tab\\cf2 {words}\\par"


def note(words):
    return f"\\pard\\sb100\\cf3\\f0\\i\\fs17 {words}\\i0\\par"


def bold(words):
    return f"{{\\b {words}}} "


def save(path, content):
    put_text(path, content)
