#pragma once

#include "core/files/document_path.h"
#include "services/dialogs/dialog_responder.h"
#include "services/system/service_slot.h"
#include "services/values/native_path_text.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace tavmoor::test {

/// Answers the dialogs of each kind with the answers put in its line, in turn; a dialog that finds
/// its line empty is cancelled. Keeps every request in full.
class ScriptedDialogs final : public DialogResponder {
public:
    ScriptedDialogs() = default;
    ScriptedDialogs(const ScriptedDialogs&) = delete;
    ScriptedDialogs& operator=(const ScriptedDialogs&) = delete;
    ~ScriptedDialogs() override {
        EXPECT_TRUE(fileAnswers_.empty() && folderAnswers_.empty() && colors.empty() &&
                    fonts.empty())
            << "not every dialog came up";
    }

    /// The next open or save dialog gives the file of a document path; "" cancels it.
    void AnswerFile(std::string_view documentPath, int filterIndex = 1) {
        fileAnswers_.push_back({Native(documentPath), filterIndex});
    }
    void AnswerNativeFile(const QString& path) { fileAnswers_.push_back({path, 1}); }
    /// As AnswerFile, for the next folder dialog.
    void AnswerFolder(std::string_view documentPath) {
        folderAnswers_.push_back(Native(documentPath));
    }
    std::deque<std::optional<QColor>> colors;
    std::deque<std::optional<FontChoice>> fonts;
    std::function<void()> whileOpen; ///< runs in the next open or colour dialog
    bool hasShell = false;           ///< what Shell answers
    QIcon icon;                      ///< what FileIcon answers

    std::vector<FileRequest> opened;
    std::vector<FileRequest> saved;
    std::vector<FolderRequest> folders;
    std::vector<ColorRequest> colorRequests;
    std::vector<FontRequest> fontRequests;
    std::vector<PrinterRequest> printers;
    std::vector<AboutRequest> abouts;
    std::vector<std::pair<QString, int>> iconRequests;
    std::vector<ShellRequest> shells;

    std::optional<FileAnswer> OpenFile(const FileRequest& request) override {
        opened.push_back(request);
        RunWhileOpen();
        return NextFile();
    }
    std::optional<FileAnswer> SaveFile(const FileRequest& request) override {
        saved.push_back(request);
        return NextFile();
    }
    std::optional<QString> Folder(const FolderRequest& request) override {
        folders.push_back(request);
        const QString path = Next(folderAnswers_).value_or(QString());
        return path.isEmpty() ? std::nullopt : std::optional(path);
    }
    std::optional<ColorAnswer> Color(const ColorRequest& request) override {
        colorRequests.push_back(request);
        RunWhileOpen();
        const auto color = Next(colors).value_or(std::nullopt);
        return color ? std::optional(ColorAnswer{*color, request.customColors}) : std::nullopt;
    }
    std::optional<FontChoice> Font(const FontRequest& request) override {
        fontRequests.push_back(request);
        return Next(fonts).value_or(std::nullopt);
    }
    bool Printer(const PrinterRequest& request) override {
        printers.push_back(request);
        return true;
    }
    void About(const AboutRequest& request) override { abouts.push_back(request); }
    QIcon FileIcon(const QString& path, int size) override {
        iconRequests.emplace_back(path, size);
        return icon;
    }
    bool Shell(const ShellRequest& request) override {
        shells.push_back(request);
        return hasShell;
    }

private:
    static QString Native(std::string_view documentPath) {
        return documentPath.empty() ? QString() : NativePathText(NativePath(documentPath));
    }
    template <typename Answer>
    static std::optional<Answer> Next(std::deque<Answer>& answers) {
        if (answers.empty()) {
            return std::nullopt;
        }
        Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    void RunWhileOpen() {
        if (const auto act = std::exchange(whileOpen, nullptr)) {
            act();
        }
    }
    std::optional<FileAnswer> NextFile() {
        const auto answer = Next(fileAnswers_);
        return answer && !answer->path.isEmpty() ? answer : std::nullopt;
    }

    std::deque<FileAnswer> fileAnswers_;
    std::deque<QString> folderAnswers_;
    ScopedService<DialogResponder> slot_{*this};
};

} // namespace tavmoor::test
