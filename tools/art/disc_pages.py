"""The plain web pages that lie on the example discs: one sober style for all,
nothing that a page needs from outside its own disc."""

from artlib import put_text

STYLE = """
  body { margin: 0; background: %(ground)s; color: %(ink)s; font: 16px/1.55 Tahoma, Verdana, sans-serif; }
  main { max-width: 880px; margin: 0 auto; padding: 36px 28px 60px; }
  h1 { font: normal 38px/1.2 Georgia, serif; margin: 0 0 4px; color: %(head)s; }
  h2 { font: normal 22px/1.3 Georgia, serif; margin: 34px 0 8px; color: %(head)s; }
  p.lead { margin: 0 0 26px; font-size: 18px; opacity: .8; }
  a { color: %(head)s; }
  table { border-collapse: collapse; } td, th { padding: 5px 18px 5px 0; text-align: left; }
"""


def page(path, title, body, ground="#FFFFFF", ink="#1D2C3A", head="#1C5D7F", style="", script=""):
    look = STYLE % {"ground": ground, "ink": ink, "head": head} + style
    code = f"<script>{script}</script>\n" if script else ""
    put_text(
        path,
        f'<!DOCTYPE html>\n<html lang="en">\n<head>\n<meta charset="windows-1252">\n<title>{title}</title>\n'
        f"<style>{look}</style>\n</head>\n<body>\n<main>\n{body.strip()}\n</main>\n{code}</body>\n</html>\n",
    )
