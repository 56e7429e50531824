#include "support/full_project.h"

#include <regex>
#include <vector>

namespace tavmoor::test {

namespace {

std::int16_t Short(std::size_t number) {
    return static_cast<std::int16_t>(number);
}

/// The texts of both files: '|' ends a line, '@' is the row's number, '^' the next of the flags;
/// what stands in < > goes into the project file alone, in { } into the configuration alone.
class Golden {
public:
    explicit Golden(FullProject& full) : full_(full) {}

    void Add(std::string script, std::size_t row = 0, const std::vector<bool>& flags = {}) {
        static const std::regex outsideProject("\\{[^}]*\\}|[<>]");
        static const std::regex outsideConfiguration("<[^>]*>|[{}]");
        for (const bool flag : flags) {
            script.replace(script.find('^'), 1, flag ? "True" : "False");
        }
        std::string text;
        for (const char character : script) {
            text += character == '|'   ? std::string("\r\n")
                    : character == '@' ? std::to_string(row)
                                       : std::string(1, character);
        }
        full_.projectText += std::regex_replace(text, outsideProject, "");
        full_.configurationText += std::regex_replace(text, outsideConfiguration, "");
    }

private:
    FullProject& full_;
};

// The values below stand in the order of the members.

void BaseAndTitles(Golden& golden, ProjectDocument& d) {
    d.OsnovnaPodesavanja = {"Z:\\disc", "Z:\\t\\a.tavt", "Z:\\p\\b.jpg", 101,   true,  640, 480,
                            true,       "102",           "Z:\\p\\s.bmp", false, "Top", -12, 34};
    golden.Add("[Osnovna podesavanja]|<Glavni direktorijum=Z:\\disc|Sablon=Z:\\t\\a.tavt|>"
               "Pozadinska slika=<Z:\\p\\>b.jpg|Boja prozora=101|PodesiVelicinu=Da|"
               "PodesiSirinu=640|PodesiVisinu=480|CeoEkran=Da|BojaEkrana=102|"
               "backscreenslika=<Z:\\p\\>s.bmp|Backscrpredpos=Ne|backscreenpicpozicija=Ne|"
               "PozicijaX=-12|PozicijaY=34|");
    d.OsnovniPodaci = {
        "x.exe", "T\r\nb", "L & t", 103,  "Z:\\p\\l.gif", "A&B", "F1",  "21",     104,
        "C\nD",  "F2",     "22",    105,  true,           false, "E&F", "F3",     "23",
        106,     false,    true,    true, "Z:\\p\\d.ico", "F4",  "24",  "Italic", "Underline",
        "U & d", "F5",     "25",    107};
    golden.Add("[Osnovni podaci]|<exename=x.exe|>Tasknaslov=TChr$(13)Chr$(10)b|"
               "Logotekst=L Chr$(38) t|Logotekstboja=103|Logoslika=<Z:\\p\\>l.gif|"
               "Glavninaslov=AChr$(38)B|GlavninaslovFont=F1|GlnaslovVel=21|GlnaslovBoja=104|"
               "GlavniOpisnaslov=CChr$(10)D|GlavniOpisnaslovFont=F2|GlavniOpisnaslovVel=22|"
               "GlavniOpisnaslovBoja=105|GlavniOpisnaslovBold=True|GlavniOpisnaslovItalic=False|"
               "GlavniOpis=EChr$(38)F|GlavniOpisFont=F3|GlavniOpisVel=23|GlavniOpisBoja=106|"
               "GlavniOpisBold=False|GlavniOpisItalic=True|<Opis providan=1|>"
               "Ikona=<Z:\\p\\>d.ico|Font=F4|Velicina=24|Stil=Italic|Efekti=Underline|"
               "Vertekst=U <&>{Chr$(38)} d|Vertfont=F5|Vertfontvelicina=25|"
               "{Vertfontboja=107|Opis providan=1|}");
}

void Commands(Golden& golden, ProjectDocument& d) {
    CommandLook& look = d.IzvrsneKomande;
    look = {"Leave & go", "&1", "&2", "&3", "&4", {}, "111", 113, "112", "F6", "26", true, "114"};
    golden.Add("[Izvrsne komande]|Izlaz=Leave <&>{Chr$(38)} go|Exitdesctitle=Chr$(38)1|"
               "Exitdescription=Chr$(38)2|Sounddesctitle=Chr$(38)3|Sounddescription=Chr$(38)4|");
    for (std::size_t i = 1; i <= 6; ++i) {
        const std::string n = std::to_string(i);
        look.Komande[i] = {"bin\\" + n + ".exe", "&" + n, "/p" + n, "Run program" + n, Short(i)};
        golden.Add("Fajl@=bin\\@.exe|Opis@=Chr$(38)@|Parametar@=/p@|Vrsta@=Run program@|", i);
        golden.Add("Zatvara@=@|", i);
    }
    golden.Add("Boja slova=111|Boja pozadine < >komandi=112|Boja pozadine=113|"
               "Boja pozadine komandi=112|Font=F6|Velicina=26|Add shadow=1|Boja senke=114|"
               "[Opis komandi]|");
    for (std::size_t i = 1; i <= 6; ++i) {
        d.OpisKomandi[i] = {"&c" + std::to_string(i), "&o" + std::to_string(i)};
        golden.Add("C@=Chr$(38)c@|O@=Chr$(38)o@|", i);
    }
    golden.Add("[Dodatne komande]|");
    for (std::size_t i = 0; i <= 100; ++i) {
        const std::string n = std::to_string(i);
        d.DodatneKomande[i] = {i == 1 ? "  " : "N&" + n, "T&" + n, "D&" + n, "d\\" + n, "/a" + n,
                               "Open file" + n,          "c" + n,  "s" + n,  -Short(i)};
        golden.Add(i == 1 ? "addname1=#Empty#|" : "addname@=NChr$(38)@|", i);
        golden.Add("adddesctitle@=TChr$(38)@|adddescription@=DChr$(38)@|addtarget@=d\\@|", i);
        golden.Add("addparam@=/a@|addtype@=Open file@|addclose@=c@|addStopBackgroundMusic@=s@|", i);
        golden.Add(i == 0 ? "<AddID0=0|>" : "<AddID@=-@|>", i);
    }
    d.MenuTitles = {"&m", "&i", "&p", "&a"};
    golden.Add("[Menu titles]|TitleMain=Chr$(38)m|Titleinfo=Chr$(38)i|Titleprog=Chr$(38)p|"
               "Titleaddit=Chr$(38)a|");
}

void SoundScreensAndEffects(Golden& golden, ProjectDocument& d) {
    d.Zvuk = {"Z:\\m\\tune.mp3", true, 3, 4, "&s", true, "Z:\\m\\click.wav"};
    golden.Add("[Zvuk]|Fajl=<Z:\\m\\>tune.mp3|Akcija=1|Ponovi=3|Pauza=4|Komanda=Chr$(38)s|"
               "Signal=1|SignalFajl=<Z:\\m\\>click.wav|");
    d.Uvod = {true,           false, "Hi\n", "F7", "27", true, false,       true,         121,
              "Z:\\p\\u.jpg", 2,     122,    "6",  123,  124,  "Top right", "Botton left"};
    golden.Add("[Uvod]|Prikazi=1|ClickThrough=0|Poruka=HiChr$(10)|Font=F7|Fontvelicina=27|Bold=1|"
               "Italic=0|Underline=1|Bojateksta=121|Slika=<Z:\\p\\>u.jpg|Opcija=2|Bojaprozora=122|"
               "Vreme=6|Visina=123|Sirina=124|Polozajteksta=Top right|Polozajslike=Botton left|");
    d.Izlaz = {false,          true, "B&", "F8", "28", false, true,       false,       131,
               "Z:\\p\\i.jpg", 3,    132,  "7",  133,  134,   "Top left", "Top center"};
    golden.Add("[Izlaz]|Prikazi=0|ClickThroughExit=1|Tekst=BChr$(38)|Font=F8|Fontvelicina=28|"
               "Bojateksta=131|Bold=0|Italic=1|Underline=0|Slika=<Z:\\p\\>i.jpg|Opcija=3|"
               "Bojaprozora=132|Vreme=7|Visina=133|Sirina=134|Polozajteksta=Top left|"
               "Polozajslike=Top center|<[Fontovi]|>");
    for (std::size_t i = 0; i <= 20; ++i) {
        d.Fontovi[i] = "Z:\\f" + std::to_string(i) + ".ttf";
        golden.Add("<Font@=Z:\\f@.ttf|>", i);
    }
    d.Efekti = {true, false, false, true, true, false, 11, 12, 13, 14, 15, 16};
    golden.Add("[Efekti]|Splash fade in=True|Splash fade out=False|Main fade in=False|"
               "Main fade out=True|Exit fade in=True|Exit fade out=False|esplashenter=11|"
               "emainenter=12|eexitenter=13|esplashleave=14|emainleave=15|eexitleave=16|");
}

void MessagesAndShortcuts(Golden& golden, ProjectDocument& d) {
    d.Poruke = {2, "Welcome", "Hi&", "Yes", 1, "No", -1, "m1", "m2", "p1", "p2"};
    golden.Add("[Poruke]|Vrsta=2|Naslov=Welcome|Tekst=HiChr$(38)|Dugme1=Yes|Komanda1=1|Dugme2=No|"
               "Komanda2=-1|Meta1=m1|Meta2=m2|Par1=p1|Par2=p2|");
    d.Expiration = {true, "2031", "12", "24", "Over", "End\n", "1", "b1",
                    "b2", "3",    "4",  "t1", "t2",   "q1",    "q2"};
    golden.Add("[Expiration]|Enabled=True|Godina=2031|Mesec=12|Dan=24|Naslov=Over|"
               "Poruka=EndChr$(10)|Vrsta=1|Dugme1Naslov=b1|Dugme2Naslov=b2|Dugme1Komanda=3|"
               "Dugme2Komanda=4|IsticanjeDugme1Meta=t1|IsticanjeDugme2Meta=t2|"
               "IsticanjeDugme1Param=q1|IsticanjeDugme2Param=q2|[Precice]|Enabled=True|");
    d.Precice.Enabled = true;
    for (std::size_t i = 0; i <= 50; ++i) {
        const std::string n = std::to_string(i);
        d.Precice.Precice[i] = {"name" + n, "Desktop" + n, "target" + n, "group" + n};
        golden.Add("Ime@=name@|Lokacija@=Desktop@|Meta@=target@|Ekstra@=group@|", i);
    }
}

void Canvas(Golden& golden, CanvasSpec& canvas, const std::string& folder) {
    canvas = {9001, 9002, true, 9003, 9004, 9005, 9006, -32768, 32767, 9007,
              9008, 9009, 9010, 9011, 9012, 9013, {},   {},     true};
    golden.Add("[Napredni sabloni]|AutorunWidth=9001|AutorunHeight=9002|AutorunFixedSize=True|"
               "LogoTekstTop=9003|LogoTekstLeft=9004|MainAutorunTekstTop=9005|"
               "MainAutorunTekstLeft=9006|SlikaLogoX=-32768|SlikaLogoY=32767|"
               "GlavniOpisNaslovX=9007|GlavniOpisNaslovY=9008|GlavniOpisNaslovWidth=9009|"
               "GlavniOpisX=9010|GlavniOpisY=9011|GlavniOpisWidth=9012|GlavniOpisHeight=9013|");
    for (std::size_t i = 0; i <= 3; ++i) {
        canvas.Tekst[i] = {i == 2, 1, "14" + std::to_string(i), Short(i)};
        golden.Add("TekstUnderline(@)=^|TekstBackgroundStyle(@)=1|TekstBackgroundColor(@)=14@|"
                   "Poravnanje(@)=@|",
                   i, {i == 2});
    }
    for (const std::size_t i : {0U, 7U, 10U, 100U}) {
        const std::string n = std::to_string(i);
        canvas.Dugme[i] = {
            100,    Short(i), "f" + n, "b" + n,  "r" + n, "F" + n, 12,
            i == 0, i == 7,   i == 10, i == 100, 300,     9999999, folder + "\\button.png",
            1,      true};
        golden.Add("DugmeX(@)=100|DugmeY(@)=@|DugmeForeBoja(@)=f@|DugmeBackBoja(@)=b@|"
                   "DugmeBorderBoja(@)=r@|DugmeFontName(@)=F@|DugmeFontSize(@)=12|DugmeItalic(@)=^|"
                   "DugmeBold(@)=^|DugmeBorderVisible(@)=^|DugmeResizeManual(@)=^|"
                   "DugmeWidth(@)=300|DugmeID(@)=9999999|DugmePictureFile(@)=<" +
                       folder + "\\>button.png|DugmeStretchToPicture(@)=1|",
                   i, {i == 0, i == 7, i == 10, i == 100});
    }
    golden.Add("WindowMaximized=True|");
}

void TextsAndVideos(Golden& golden, ProjectDocument& d) {
    golden.Add("[ObjTekst]|");
    for (const std::size_t i : {0U, 42U, 99U}) {
        const std::string n = std::to_string(i);
        d.ObjTekst[i] = {Short(i), 501,     "&" + n, true,   502,     503,     "F" + n, 20,
                         i == 0,   i == 42, i == 99, i < 99, "f" + n, "b" + n, "a" + n};
        golden.Add("TekstBoxX(@)=@|TekstBoxY(@)=501|TekstBoxCaption(@)=Chr$(38)@|"
                   "TekstBoxVisible(@)=True|TekstBoxW(@)=502|TekstBoxH(@)=503|"
                   "TekstBoxFontName(@)=F@|TekstBoxFontSize(@)=20|TekstBoxFontB(@)=^|"
                   "TekstBoxFontU(@)=^|TekstBoxFontI(@)=^|TekstBoxTransparent(@)=<^>",
                   i, {i == 0, i == 42, i == 99, i < 99});
        golden.Add(i < 99 ? "{-1}|" : "{0}|");
        golden.Add("tekstBoxForeColor(@)=f@|tekstBoxBackColor(@)=b@|tekstBoxAlign(@)=a@|", i);
    }
    d.Ratios = {"1.25", "1.5", "0.75", "2"};
    golden.Add("{backpicOdnosx=1.25|backpicOdnosy=1.5|LogopicOdnosx=0.75|LogopicOdnosy=2|}"
               "[Video]|");
    for (std::size_t i = 1; i <= 25; ++i) {
        d.Video[i] = {"Z:\\v\\" + std::to_string(i), i != 2, Short(i), 700, Short(i) + 0.5, i == 2};
        golden.Add("VideoFajl@=<Z:\\v\\>@|videoAutoplay@=^|videoLeft@=@|videoTop@=700|Volume@=@.5|"
                   "videorepeat@=^|",
                   i, {i != 2, i == 2});
    }
}

} // namespace

std::unique_ptr<FullProject> MakeFullProject(const std::string& folder) {
    auto full = std::make_unique<FullProject>();
    Golden golden(*full);
    BaseAndTitles(golden, full->document);
    Commands(golden, full->document);
    SoundScreensAndEffects(golden, full->document);
    MessagesAndShortcuts(golden, full->document);
    Canvas(golden, full->document.NapredniSabloni, folder);
    TextsAndVideos(golden, full->document);
    return full;
}

} // namespace tavmoor::test
