#pragma once

#include "QuorIniFile/Export.h"
#include "QuorIniFile/INIFile.h"
#include "QuorIniFile/IniLeftover.h"
#include "QuorIniFile/IniLines.h"
#include "QuorIniFile/IniWarning.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace QuorIniFile {

class IniFileSystem;

/// The built-in INI-file component. It works on the file with that name and changes nothing in it except the
/// lines that are written.
///
/// The file is loaded by the first read or write. Reading from a file that does not exist raises 53; a write
/// creates it, in a folder that must exist (76). Reading a key that is missing, or whose value is not of the
/// requested type, returns False and leaves `value` unchanged. All reads see the same text, including what
/// was written through this object: the text that was loaded, until a save finds that another program has
/// changed the file, or until Reload.
///
/// A write is durable when it returns. Between Hold and Release the writes are kept in memory; the outermost
/// Release makes them durable together. Writing a value that the file already has changes nothing. A save
/// replaces the whole file, atomically, and one process at a time: it takes the lock, reads the file, and
/// merges the written values into the text that it finds. It succeeds only if the file then is what was
/// written, whatever other programs have done to the lock and to temporary files in the meantime. A save that
/// fails raises and keeps the changes; the next write or Release tries again.
///
/// A section that another program has removed from the file, or renamed, is added again by a save if every
/// key that it had when it was loaded was written; if only some were, the save and Reload raise 75. A file
/// that was deleted or emptied receives everything that was written.
///
/// A write overwrites a value that another program has changed since it was read. A program that changes what
/// it has read (a counter, one coefficient of a record) reads and writes inside Edit, where no other process
/// can interfere.
///
/// A UTF-16 file with a byte-order mark, of either byte order, is edited like any other and stays UTF-16.
///
/// Errors are QuorError with the source "QuorIniFile" and the file's name in the description: bad file name
/// 52, device error 57, disk full 61, permission denied 70, path not found 76, and 75 for anything else that
/// cannot be read or written, such as UTF-16 text that is invalid or has no byte-order mark, and names that
/// could not be read back from the file; QuorError::Cause() has the reason for programs. If another process
/// has been saving the file for ten seconds, the error is 70, "In use by" that process. Lack of memory is
/// std::bad_alloc. After any of them the file is either unchanged or complete, and the object holds what it
/// held before.
class QUORINIFILE_EXPORT IniStore final : public INIFile {
public:
    /// A store on the files of this computer. SetFileName must follow before the first read or write (52).
    IniStore();
    /// A store on other files, which must outlive it: those of a test, which fail on demand.
    explicit IniStore(IniFileSystem& files);
    /// A store of a text in memory (Text of another store), such as an earlier state of a file. It has no
    /// file: what is written into it stays in memory, and raises 52.
    [[nodiscard]] static std::shared_ptr<IniStore> OfText(std::string_view text);
    IniStore(const IniStore&) = delete;
    IniStore& operator=(const IniStore&) = delete;
    /// Saves what is still held, ignoring failures: a caller that must know calls Release. A save that has
    /// raised is not tried again.
    ~IniStore() override;

    /// Stores the name; the file is not touched. A relative name refers to the current folder at the time of
    /// the call. An empty name, or one that no file can have, raises 52. Pending changes of another file are
    /// saved first, even if held, unless a record among them was abandoned. The same name changes nothing.
    void SetFileName(std::wstring_view fileName) override;
    /// The name as it was set; empty at first.
    [[nodiscard]] std::wstring_view FileName() const;
    /// Creates the folder of the file, and those above it, if they are missing, accessible to the user only.
    /// Raises 52 without a file name, 76 if a file is in the place of a folder, 70 or 75 if it is impossible
    /// for another reason.
    void MakeFolder();
    /// The section without a name is selected at first.
    void SetSection(std::wstring_view section) override;
    /// The selected section.
    [[nodiscard]] std::wstring_view Section() const;

    [[nodiscard]] bool ReadBoolean(std::wstring_view key, bool& value) override;
    [[nodiscard]] bool ReadDouble(std::wstring_view key, double& value) override;
    [[nodiscard]] bool ReadInteger(std::wstring_view key, std::int16_t& value) override;
    [[nodiscard]] bool ReadString(std::wstring_view key, std::wstring& value) override;
    /// A comment is written after the value as " ; comment"; an empty one keeps the comment of the line.
    void WriteBoolean(std::wstring_view key, bool value) override;
    void WriteDouble(std::wstring_view key, double value, std::wstring_view comment) override;
    void WriteInteger(std::wstring_view key, std::int16_t value, std::wstring_view comment) override;
    void WriteString(std::wstring_view key, std::wstring_view value) override;

    /// Writes a value and the comment behind it as they stand in a line (IniLines::ValueWithComment), such as
    /// that of a key whose meaning is not known. A comment that is there stays where none is given. What the
    /// encoding of the file lacks is written as WriteString writes it.
    void WriteAsItStands(std::wstring_view key, std::wstring_view value);

    /// Whether there is a text: a file, or what was written for one that does not exist yet. Without a text
    /// there are no sections.
    [[nodiscard]] bool HasText();
    /// The current text, including what was written: the bytes of the file, or of a UTF-16 file the same text
    /// as UTF-8. The view is valid as long as what Lines returns. Raises 53 if there is no file.
    [[nodiscard]] std::string_view Text();
    /// The names of all sections, including those written, in the order of the file; a name that occurs
    /// several times is listed once, in its first place. Raises 53 if there is no file.
    [[nodiscard]] std::vector<std::wstring> Sections();
    /// Lines in which something may be wrong, such as a key that occurs twice in its section, in their order.
    /// They refer to the text that was loaded or last saved, without what is held. Raises 53 if there is no
    /// file.
    [[nodiscard]] std::vector<IniWarning> Warnings();
    /// Whether a new section can have that name: it has no line break, no ']', which would end it, and
    /// nothing that could not be read back from a file.
    [[nodiscard]] static bool CanNameSection(std::wstring_view name);
    /// Whether a new section or key of this file can have that name as far as its encoding goes: a Latin-1
    /// file has no bytes for the characters beyond U+00FF. In a file that does not exist yet it can have any.
    [[nodiscard]] bool CanSpell(std::wstring_view name);
    /// Whether there is a section of that name, even one without keys. Raises 53 if there is no file.
    [[nodiscard]] bool HasSection(std::wstring_view name);
    /// The lines of the current text, including what was written, starting at a line that was visited earlier
    /// in the same text (IniLines::Here). Raises 53 if there is no file.
    [[nodiscard]] IniLines Lines(const IniLines::Place& from = {});
    /// Whether each header of the text is closed and each section stands there once, as in nearly all files;
    /// known without a walk through the lines. It may be false for a text from which later sections of a name
    /// were removed, until that is saved. Raises 53 if there is no file.
    [[nodiscard]] bool HasPlainHeaders();
    /// A number that changes whenever the text may have changed: something was written or discarded, or
    /// another program's text was loaded. For callers that store results of Lines.
    [[nodiscard]] std::uint64_t TextNumber() const;
    /// Removes a section: its header, the comments directly above it, and its body down to the last key and
    /// the comments directly below that. Comments set apart by a blank line stay, as do those at the start of
    /// the file. Later sections of the same name, which are never read, are removed too. A section that does
    /// not exist is no error. If it is written into afterwards, it returns to its old place.
    void RemoveSection(std::wstring_view name);
    /// Rewrites the name in the header of a section and in those of later sections of that name, and nothing
    /// else. Raises 75 if there is no section `from`, if another section is called `to`, or if that name
    /// could not be read back from the file or has characters that the encoding of the file lacks.
    void RenameSection(std::wstring_view from, std::wstring_view to);
    /// Discards what was written, removed or renamed and is not in the file yet because it was held or could
    /// not be saved. The file is loaded again when it is next needed.
    void Discard();

    /// Calls `edit` while holding the inter-process lock: `edit` reads the current file through this store,
    /// and what it writes is saved together before Edit returns. No update of another process that saves
    /// through a store is lost. If there is no file yet, reads raise 53 until something is written.
    ///
    /// If a program that takes no lock changes the file in the meantime, the function is called again on the
    /// new text: it must be repeatable and affect nothing but this store. Other processes, and other stores
    /// in this process, wait at most ten seconds for the lock: the function must be short and must not wait
    /// for the user. A child process that it forks must not return from it.
    ///
    /// If the function raises, its exception passes through; if the file cannot be saved, Edit raises what a
    /// save raises. In both cases nothing is saved, what the function wrote is discarded, and Edit can be
    /// called again. (As after every save, a disk error may be reported although the file is complete and
    /// new, but may not survive a power failure.) A function that writes nothing, or only values that the
    /// file already has, leaves the file alone. Changes from an earlier save that failed are saved first.
    ///
    /// Between Hold and Release, Edit raises 75 and does nothing. Inside an edit:
    /// - A nested Edit is part of the outer one, which saves. If it raises, the outer one saves nothing.
    /// - Hold and Release nest and save nothing; what is still held is saved with the rest. Abandon, even
    ///   without a Hold, makes the edit save nothing and raise 75 at its end, as Release does.
    /// - The section that was selected before is selected at the start, and again afterwards.
    /// - Discard discards what the edit has written so far; Reload keeps it.
    /// - SetFileName with another name raises 75.
    void Edit(const std::function<void()>& edit);

    void Hold() override;
    /// Without a Hold it does nothing. If a bracket inside this one was abandoned, discards everything and
    /// raises 75.
    void Release() override;
    /// Without a Hold it does nothing. In the outermost bracket it is the same as Discard.
    void Abandon() override;

    /// Whether the file now differs from what was loaded or last saved, or has appeared or disappeared. Looks
    /// at the file's attributes, and reads the file only if they have changed. False if nothing was loaded
    /// yet. Raises what loading would raise.
    [[nodiscard]] bool FileChanged();
    /// Whether a save would be refused because the user has no permission to write the file or to create
    /// files in its folder. Follows symbolic links.
    [[nodiscard]] bool IsReadOnly() const;
    /// Whether `fileName` is this store's own file, also through links. Raises QuorError if the system cannot
    /// say.
    [[nodiscard]] bool IsOwnFile(std::wstring_view fileName) const;
    /// What saves of the file have left beside it; the paths are relative if the file's name is. Leftovers of
    /// interrupted saves are not listed while a save is under way, or if that cannot be determined (a file
    /// system without locks, a lock file that only another user may open).
    [[nodiscard]] std::vector<IniLeftover> Leftovers() const;
    /// Replaces another file with the current text, including what was written: in the same encoding, durably
    /// and atomically like a save, and through symbolic links. This object keeps its own file, and what is
    /// held for that stays held. Raises 53 if there is no text, and what a save raises; the other file is
    /// then unchanged. If `fileName` is the own file, it is saved as usual, held or not; if that file was
    /// deleted, it receives the whole text. Raises 75 inside an edit, which saves by itself, and if a bracket
    /// was abandoned.
    void SaveAs(std::wstring_view fileName);
    /// Loads the current file. What was written and not yet saved is kept and applied to the new text. On an
    /// error the object is unchanged. Before the first read or write it does nothing.
    void Reload();

private:
    class Session;
    std::unique_ptr<Session> m_session;
};

} // namespace QuorIniFile
