#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/SettingsStore.h"
#include "core/SharedState.h"
#include "phonebook/EntryEditor.h"
#include "phonebook/EntryWriter.h"
#include "phonebook/LetterView.h"
#include "phonebook/PhonebookPane.h"
#include "phonebook/PhonebookStore.h"
#include "platform/Messages.h"

namespace velmora {

// What the editors work with. All must outlive them.
struct EntryEditorParts {
    SharedState& state;
    const SettingsStore& settings;
    const PhonebookStore& store;
    EntryWriter& writer;
    LetterView& view;
    Messages& messages;

    // Flips the main window's hidden check box, which makes the window do what PendingBook and
    // PendingLetter ask for before this returns.
    std::function<void()> flipCheck1;

    // Runs what writes to a book, and waits while another copy of the program does.
    std::function<void(const std::function<void()>&)> patiently = [](const auto& work) { work(); };
};

// The checks, the messages and the way back to the main window, which adding and changing share.
// An editor works on the book that was in use when it was made.
class CheckedEntryEditor : public EntryEditor {
  public:
    explicit CheckedEntryEditor(const EntryEditorParts& parts);

    [[nodiscard]] std::string custom1Caption() const override;
    [[nodiscard]] std::string custom2Caption() const override;
    Outcome apply(const Entry& values) final;
    void closed() override;

  protected:
    // Writes the record; false when it was refused and the user knows.
    [[nodiscard]] virtual bool write(const PhonebookRecord& record) = 0;

    EntryEditorParts parts_;
    std::string bookFile_;

  private:
    [[nodiscard]] bool refused(const Entry& values) const;
    void showEntry(const PhonebookRecord& record);
};

class NewEntryEditor final : public CheckedEntryEditor {
  public:
    using CheckedEntryEditor::CheckedEntryEditor;

    [[nodiscard]] EntryOrigin origin() const override { return {bookFile_, std::nullopt}; }
    [[nodiscard]] std::string caption() const override;
    [[nodiscard]] std::string applyCaption() const override;
    [[nodiscard]] Entry load() override;

  private:
    [[nodiscard]] bool write(const PhonebookRecord& record) override;
};

class ChangeEntryEditor final : public CheckedEntryEditor {
  public:
    // `line` is the list line of the entry to be changed.
    ChangeEntryEditor(const EntryEditorParts& parts, std::string line);

    [[nodiscard]] EntryOrigin origin() const override { return {bookFile_, line_}; }
    [[nodiscard]] std::string caption() const override;
    [[nodiscard]] std::string applyCaption() const override;

    // An entry that is gone leaves the form empty.
    [[nodiscard]] Entry load() override;

  private:
    [[nodiscard]] bool write(const PhonebookRecord& record) override;

    std::string line_;
    bool isLoaded_ = false;
    std::optional<PhonebookRecord> loaded_;  // nothing where the entry was gone
};

}  // namespace velmora
