#include "commands.h"

#include "console.h"
#include "core/document/words.h"
#include "core/files/runtime_error.h"
#include "core/session/recovery_folder.h"
#include "package/package_reader.h"
#include "process.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace tavmoor::cli {

namespace {

constexpr int UsageError = 2;

/// The commands and their arguments, and the one that was asked for.
class CommandLine {
public:
    CommandLine() {
        app_.require_subcommand(1);
        AddBuild();
        AddResave();
        AddProjectCommands();
        AddPackage();
        AddTemplates();
    }

    void Parse(std::vector<std::string> arguments) {
        RequireKnownCommand(arguments);
        std::reverse(arguments.begin(), arguments.end()); // the order that the parser wants
        app_.parse(std::move(arguments));
    }

    int Exit(const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) {
            return app_.exit(error); // --help
        }
        std::string text = error.what();
        std::replace(text.begin(), text.end(), '\n', ' ');
        PrintError(text + " (see tavmoor-cli --help)");
        return UsageError;
    }

    int Run() { return command_(); }

    [[nodiscard]] const ProjectDocument* OpenProject() const { return openProject_; }

private:
    void RequireKnownCommand(const std::vector<std::string>& arguments) {
        if (arguments.empty() || arguments.front().starts_with('-')) {
            return;
        }
        const std::string& name = arguments.front();
        const auto isNamed = [&name](const CLI::App* command) {
            return command->get_name() == name;
        };
        if (app_.get_subcommands(isNamed).empty()) {
            throw CLI::ArgumentMismatch("there is no command \"" + name + "\"");
        }
    }

    static void AddProject(CLI::App* command, std::string& project) {
        const std::string ending(words::ProjectEnding);
        command->add_option("PROJECT", project, "The project file (" + ending + ")")->required();
    }

    static void AddProgramFolder(CLI::App* command, std::optional<std::string>& folder) {
        command->add_option("--program-folder", folder,
                            "The folder that a leading % in the project stands for");
    }

    void AddBuild() {
        CLI::App* build = app_.add_subcommand("build", "Build the autorun into the disc's folder");
        AddProject(build, build_.project);
        build->add_option("--cd-folder", build_.cdFolder, "The disc's folder, over the project's");
        build->add_option("--name", build_.name, "The autorun's name, without .exe");
        build->add_flag("--run", build_.run, "Start the autorun afterwards");
        build->add_flag("--replace", build_.replace,
                        "Replace a program of the autorun's name that was made by somebody else");
        build->add_flag("--delete-old-first", build_.deleteOldFirst,
                        "Delete the old autorun first where there is no room beside it");
        AddProgramFolder(build, build_.programFolder);
        build->callback(
            [this] { command_ = [this] { return BuildCommand(build_, openProject_); }; });
    }

    void AddResave() {
        CLI::App* resave = app_.add_subcommand("resave", "Read a project and write it again");
        resave->add_option("IN", resave_.input)->required();
        resave->add_option("OUT", resave_.output)->required();
        resave->add_flag("--as-read", resave_.asRead,
                         "Leave the button rows out, as an open and a save without the canvas do");
        AddProgramFolder(resave, resave_.programFolder);
        resave->callback([this] { command_ = [this] { return ResaveCommand(resave_); }; });
    }

    CLI::App* AddProjectCommand(const char* name, const char* description,
                                int (*run)(const ProjectArguments&)) {
        CLI::App* command = app_.add_subcommand(name, description);
        AddProject(command, project_.project);
        AddProgramFolder(command, project_.programFolder);
        command->callback([this, run] { command_ = [this, run] { return run(project_); }; });
        return command;
    }

    void AddProjectCommands() {
        AddProjectCommand("config", "Write the runtime configuration alone", ConfigurationCommand)
            ->add_option("OUT", project_.output)
            ->required();
        AddProjectCommand("show", "Show every field that differs from a new project", ShowCommand)
            ->add_flag("--json", project_.json);
        AddProjectCommand("check", "Tell all that would go wrong in a build", CheckCommand);
    }

    void AddPackage() {
        CLI::App* package = app_.add_subcommand("package", "Look into an Autorun.arn");
        package->require_subcommand(1);
        CLI::App* list = package->add_subcommand("list", "Size and name of each file");
        list->add_option("FILE", packageFile_)->required();
        list->callback([this] { command_ = [this] { return PackageListCommand(packageFile_); }; });
        CLI::App* extract = package->add_subcommand("extract", "Write the files into a folder");
        extract->add_option("FILE", packageFile_)->required();
        extract->add_option("DIR", packageFolder_)->required();
        extract->callback([this] {
            command_ = [this] { return PackageExtractCommand(packageFile_, packageFolder_); };
        });
    }

    void AddTemplates() {
        CLI::App* templates = app_.add_subcommand("templates", "Name and descriptor of each");
        AddProgramFolder(templates, project_.programFolder);
        templates->callback(
            [this] { command_ = [this] { return TemplatesCommand(project_.programFolder); }; });
    }

    CLI::App app_{"Builds Tavmoor projects and looks into their files.", "tavmoor-cli"};
    BuildArguments build_;
    ResaveArguments resave_;
    ProjectArguments project_;
    std::string packageFile_;
    std::string packageFolder_;
    const ProjectDocument* openProject_ = nullptr;
    std::function<int()> command_;
};

/// The boundary that run-time errors travel to: the open project is kept, the error told.
int EndOnRuntimeError(const RuntimeError& error, const ProjectDocument* openProject) {
    PrintError(OneLine(error.what()));
    if (openProject != nullptr) {
        try {
            PrintError("the project was kept in " + Utf8(WriteRecoveryFile(*openProject)));
        } catch (const RuntimeError& second) {
            PrintError("the project could not be kept: " + OneLine(second.what()));
        }
    }
    return 1;
}

int RunCommandLine(int count, char** values) {
    CommandLine line;
    try {
        line.Parse(CommandLineArguments(count, values));
        return line.Run();
    } catch (const CLI::ParseError& error) {
        return line.Exit(error);
    } catch (const RuntimeError& error) {
        return EndOnRuntimeError(error, line.OpenProject());
    } catch (const std::exception& error) {
        PrintError(error.what());
        return 1;
    }
}

/// What comes as far as here left no memory to say more with.
int Main(int count, char** values) noexcept {
    try {
        PrepareConsole();
        return RunCommandLine(count, values);
    } catch (...) {
        std::fputs("tavmoor-cli: out of memory\n", stderr);
        return 1;
    }
}

} // namespace

} // namespace tavmoor::cli

int main(int count, char** values) {
    return tavmoor::cli::Main(count, values);
}
