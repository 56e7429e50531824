"""The template folders: what a template can do, and how it introduces itself."""

from artlib import CORAL, NAVY, OCEAN, PLUM, PROGRAM, TEAL, put_text
from rich_text import bold, heading, lead, note, page, point, save, text

FOLDER = PROGRAM / "Templates"


def descriptor(folder, extension, name, commands, editor):
    put_text(
        FOLDER / folder / f"{folder}.{extension}",
        f"[Template]\nName={name}\ncommand number={commands}\n[Additional settings]\nEnable={editor}\n",
    )


def nexus():
    descriptor("Nexus", "tavt", "Nexus", 24, 0)
    return page(
        OCEAN, NAVY,
        heading("Nexus"),
        lead("A dark, orderly window for a disc with a lot on it."),
        text("The title stands at the top. Commands form a column at the left, gathered under the four "
             + bold("menu titles") + "that you choose; what a command does is told in the large field at the right."),
        point(bold("Main") + "- your six commands that open files and run programs"),
        point(bold("Info") + "- commands that visit a web page or send mail"),
        point(bold("Additional") + "- up to 24 more commands"),
        point(bold("Program") + "- exit and sound"),
        text("Give every command a description title and a description text: the field at the right is made for them. "
             "A dark background picture of 800 by 500 pixels suits it best."),
        note("Good for software collections, driver discs and reference works."),
    )


def harbor():
    descriptor("Harbor", "tavt", "Harbor", 8, 0)
    return page(
        TEAL, NAVY,
        heading("Harbor"),
        lead("A light, calm window with room to read."),
        text("Logo and title stand at the top left, with a thin line under them. Buttons go down a column "
             "at the right; your picture and the description share the wide area beside it."),
        point("Six commands, exit and sound, and up to " + bold("8 additional commands")),
        point("A " + bold("logo picture") + "of about 64 by 64 pixels beside the title"),
        point("Descriptions below the picture change as the pointer moves over the buttons"),
        text("Choose a pale window colour and dark text. The background picture may be left out."),
        note("Good for guides, course material and company presentations."),
    )


def marquee():
    descriptor("Marquee", "tavt", "Marquee", 6, 0)
    return page(
        PLUM, NAVY,
        heading("Marquee"),
        lead("Your picture is the window."),
        text("The background picture fills the whole window and the title is set over it. Wide buttons stand in "
             "a grid along the bottom, on a band that is shaded so that they can be read on any picture."),
        point("Six commands, exit and sound, and up to " + bold("6 additional commands")),
        point("Title, logo and description over the picture"),
        point("Best with a picture of " + bold("800 by 500 pixels") + "whose lower third is quiet"),
        text("Use a light text colour, or switch on the text shadow, when the picture is busy at the top."),
        note("Good for photo albums, films and everything that is looked at first and read later."),
    )


def editor():
    descriptor("Advanced visual editor", "Atavt", "ADVANCED VISUAL EDITOR", 101, 1)
    return page(
        CORAL, NAVY,
        heading("Advanced Visual Editor"),
        lead("An empty window, and everything in it goes where you want it."),
        text("Drag buttons, texts, pictures and videos to their places and see the finished menu while you work. "
             "The design panel beside the canvas shows the properties of whatever you select."),
        point(bold("Buttons") + "with their own colours, fonts, borders and pictures, up to 101 additional commands"),
        point(bold("Texts") + "of any size, with or without a background"),
        point(bold("Videos") + "that start by themselves or wait for a click, and can repeat"),
        point("A click with the right button opens the menu of every object"),
        text("All buttons can be aligned, or given the look of one of them, in a single step."),
        note("Recommended when no simple template looks the way you have in mind."),
    )


PAGES = {"Nexus": nexus, "Harbor": harbor, "Marquee": marquee, "Advanced visual editor": editor}


def make():
    for folder, introduce in PAGES.items():
        save(FOLDER / folder / "opis.rtf", introduce())


if __name__ == "__main__":
    make()
