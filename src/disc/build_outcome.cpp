#include "disc/build_outcome.h"

#include "core/text/code_page.h"

#include <algorithm>
#include <string_view>

namespace tavmoor {

namespace {

constexpr std::string_view Error = "Error...";
constexpr std::string_view LineBreak = "\r\n";

BuildOutcome Ended(BuildEnd end, std::string text, std::string_view title = Error) {
    BuildOutcome outcome;
    outcome.end = end;
    outcome.text = std::move(text);
    outcome.title = title;
    outcome.isCritical = title == Error;
    return outcome;
}

} // namespace

BuildOutcome FolderMissing(const std::string& cdFolder) {
    return Ended(BuildEnd::FolderMissing,
                 cdFolder + " does not exist!" + std::string(LineBreak) +
                     "You have to select CD-ROM files folder on your local disk.");
}

BuildOutcome NameRefused(const std::string& name) {
    BuildOutcome outcome =
        Ended(BuildEnd::NameRefused,
              "It is highly recomended that filename contains of following characters\r\n"
              "1234567890qwertyuiopasdfghjklzxcvbnmQWERTYUIOPASDFGHJKLZXCVBNM\r\n"
              "Make sure filename does not contain spaces or characters such as |\\''?*<':>+[]/\r\n"
              "\r\n"
              "You want to be sure that your program will work on any computer running Windows "
              "operating system.",
              "");
    outcome.suggestedName = name;
    std::replace(outcome.suggestedName.begin(), outcome.suggestedName.end(), ' ', '_');
    return outcome;
}

BuildOutcome NameEmpty() {
    return Ended(BuildEnd::NameEmpty, "Filename cannot be blank!", "");
}

BuildOutcome FileUnreadable(const std::string& path) {
    BuildOutcome outcome = Ended(BuildEnd::FileUnreadable,
                                 "There was an error accessing file " + path +
                                     std::string(LineBreak) + "Check if the file exist!",
                                 "Error in file");
    return outcome;
}

BuildOutcome Refused(std::string objection) {
    return Ended(BuildEnd::Refused, std::move(objection));
}

BuildOutcome Declined(BuildQuestion question, std::string problem) {
    BuildOutcome outcome = Ended(BuildEnd::Declined, std::move(problem));
    outcome.declined = question;
    return outcome;
}

BuildOutcome Busy(const std::string& cdFolder, const std::string& holder) {
    return Ended(BuildEnd::Busy, "The autorun in " + cdFolder + " is being built by " +
                                     SystemCodePage().FromUtf8(holder).bytes +
                                     ". Build again when that has ended.");
}

BuildOutcome InUse(std::string objection) {
    return Ended(BuildEnd::InUse, std::move(objection));
}

BuildOutcome NoRoom(const std::string& folder, std::uint64_t missing) {
    return Ended(BuildEnd::NoRoom,
                 "There is not enough room in the " + folder +
                     (missing == 0 ? std::string(".")
                                   : ": " + MegabytesOf(missing) + " MB more are needed."));
}

BuildOutcome NotPlaced(const std::string& error, const std::vector<std::string>& placed) {
    BuildOutcome outcome = Refused("The autorun could not be placed: " + error);
    if (!placed.empty()) {
        outcome.end = BuildEnd::PartlyPlaced;
        outcome.text += std::string(LineBreak) + "These files are new: " + Joined(placed) +
                        ". Build again to place the others.";
        outcome.placed = placed;
    }
    return outcome;
}

BuildOutcome OlderStays(const std::vector<std::string>& older) {
    return Ended(BuildEnd::OlderStays,
                 "The autorun stands, but older files could not be deleted: " + Joined(older));
}

std::string Joined(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) {
        text += (text.empty() ? "" : ", ") + name;
    }
    return text;
}

std::string MegabytesOf(std::uint64_t bytes) {
    constexpr std::uint64_t Megabyte = 1U << 20U;
    return std::to_string((bytes + Megabyte - 1) / Megabyte);
}

} // namespace tavmoor
