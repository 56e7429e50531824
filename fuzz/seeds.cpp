// Writes the first inputs and the dictionaries of the fuzz targets:
//   fuzz_seeds FOLDER   makes FOLDER/<target>/ and FOLDER/<target>.dict

#include "core/document/field_text.h"
#include "core/document/field_writer.h"
#include "core/document/project_fields.h"
#include "core/document/project_reset.h"
#include "support/package_bytes.h"
#include "support/pe_image.h"
#include "support/picture_bytes.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>

namespace {

namespace fs = std::filesystem;
using namespace tavmoor;

void Write(const fs::path& file, const std::string& bytes) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
}

/// A project in which every field of the first rows holds something.
std::string FullProject() {
    constexpr std::size_t rows = 3;
    ProjectDocument document = NewProjectDocument();
    for (const FieldBlock& block : ProjectBlocks()) {
        for (std::size_t row = block.first; row < std::min(block.first + rows, block.last + 1);
             ++row) {
            for (const FieldSpec& field : block.fields) {
                const bool isText =
                    std::holds_alternative<std::string*>(field.access.edit(document, row));
                const bool isFlag = std::holds_alternative<bool*>(field.access.edit(document, row));
                AssignFieldText(document, {&block, &field, row},
                                isText   ? "%a & b"
                                : isFlag ? "True"
                                         : "1",
                                FieldFile::Project);
            }
        }
    }
    for (std::size_t row = 0; row < rows; ++row) {
        document.NapredniSabloni.Dugme[row].DugmeExists = true;
    }
    return FieldFileText(document, FieldFile::Project);
}

std::string ProjectDictionary() {
    std::set<std::string> lines;
    for (const FieldBlock& block : ProjectBlocks()) {
        lines.insert("\"[" + std::string(block.section) + "]\\x0d\\x0a\"");
        for (const FieldSpec& field : block.fields) {
            lines.insert("\"" + KeyOf({&block, &field, block.first}) + "=\"");
        }
    }
    std::string text = "\"Chr$(10)\"\n\"Chr$(13)\"\n\"Chr$(38)\"\n\"#Empty#\"\n\"\\x0d\\x0a\"\n"
                       "\"True\"\n\"False\"\n\"Da\"\n\"Ne\"\n\"&H\"\n\"e308\"\n\"-32768\"\n";
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}

void WriteProfileSeeds(const fs::path& folder) {
    Write(folder / "two_sections", "[A]\r\nb=c\r\nB=d\r\n[a]\r\nb=e\r\n[C]\r\n=x\r\n");
    Write(folder / "no_section", "k=v\n[open\n[]\nk=w=z\n");
    Write(folder / "long_value", "[s]\nk=" + std::string(1100, 'x') + "\n");
}

void WriteProjectSeeds(const fs::path& folder) {
    Write(folder / "full", FullProject());
    Write(folder / "new", FieldFileText(NewProjectDocument(), FieldFile::Project));
    Write(folder / "template", "[Osnovna podesavanja]\r\nSablon=%Templates\\a\\a.tavt\r\n");
}

void WritePackageSeeds(const fs::path& folder) {
    Write(folder / "two_files",
          test::PackageBytes({{"tavmoor.cfg", "[Zvuk]\r\n"}, {"a.wav", "RIFF"}}));
    Write(folder / "empty_file", test::PackageBytes({{"a", ""}}));
    Write(folder / "one_byte", test::PackageBytes({{"a", ""}, {"b", "x"}}));
    Write(folder / "no_file", test::PackageBytes({}));
    Write(folder / "unsafe",
          test::PackageBytes({{"../a", "x"}, {"nul", "y"}, {"A", "1"}, {"a", "2"}}));
}

void WritePictureSeeds(const fs::path& folder) {
    using namespace tavmoor::test;
    Write(folder / "jpg", ProgressiveJpg(600, 300, 3, 4));
    Write(folder / "gif", Gif(16, 8));
    Write(folder / "bmp", BmpHeaders(4, -2, 24, 0) + std::string(24, 'r'));
    Write(folder / "packed_bmp", BmpHeaders(40, 2, 8, 1) + std::string(1030, '\0'));
    Write(folder / "old_bmp", "BM" + Longs({0, 0, 26, 12}) + Words({8, 2, 1, 1}) + "palette.rows.");
    Write(folder / "icon", IconFile(1, {{16, 16, "small"}, {0, 0, PngSignature + "large"}}));
    Write(folder / "cursor", IconFile(2, {{32, 32, "pixels"}}));
    Write(folder / "png", PngSignature + PngChunk("IHDR", "size") + PngChunk("tEXt", "words") +
                              PngChunk("IDAT", "pixels") + PngChunk("IEND", ""));
    const std::string wmf =
        Wmf(40, 30, WmfRecord(0x020B, Words({3, 4})) + WmfRecord(0x020C, Words({-30, 40})));
    Write(folder / "placed_wmf", wmf);
    Write(folder / "wmf", wmf.substr(22));
    Write(folder / "emf", Emf(40, 30, 1, EmfRecord(37, Longs({1}))));
}

void WriteVersionSeeds(const fs::path& folder) {
    using namespace tavmoor::test;
    const std::string usual = VersionResourceOf(u"Orlenta");
    Write(folder / "pe32", MakePeImage(usual).bytes);
    Write(folder / "pe32plus", MakePeImage(usual, PeKind::Pe32Plus).bytes);
    Write(folder / "surrogates",
          MakePeImage(VersionResourceOf(u"\xD83D\xDCBF\xD83D \xDCBF")).bytes);
    Write(folder / "no_version", MakePeImage("").bytes);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: fuzz_seeds FOLDER\n";
        return 2;
    }
    const fs::path folder = argv[1];
    WriteProfileSeeds(folder / "profile_reader");
    WriteProjectSeeds(folder / "project_reader");
    WritePackageSeeds(folder / "package_reader");
    WritePictureSeeds(folder / "picture_headers");
    WriteVersionSeeds(folder / "version_block");
    Write(folder / "project_reader.dict", ProjectDictionary());
    Write(folder / "package_reader.dict", "\"TAVMOOR PACKAGE\"\n\"[Pocetak]\"\n\"[Kraj]\"\n"
                                          "\"\\x0d\\x0a\\x0d\\x0a\\x0d\\x0a\"\n"
                                          "\"\\x0d\\x0a\\x0d\\x0a\"\n");
    Write(folder / "picture_headers.dict",
          "\"\\xff\\xd8\\xff\"\n\"\\xff\\xda\"\n\"GIF89a\"\n\"\\x89PNG\\x0d\\x0a\\x1a\\x0a\"\n"
          "\"BM\"\n\" EMF\"\n\"\\xd7\\xcd\\xc6\\x9a\"\n\"IHDR\"\n\"IEND\"\n");
    Write(folder / "version_block.dict", "\"MZ\"\n\"PE\\x00\\x00\"\n");
}
