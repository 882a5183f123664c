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

/// The built-in INI-file component: it stands on the file of that name and changes nothing in it but the
/// lines that are written.
///
/// The file is loaded by the first read or write. A read from a file that does not exist is error 53; a write
/// creates it, in a folder that must exist (76). A key that is missing, or whose value is not of the kind
/// asked for, reads as False and leaves `value` as it was. All reads see one and the same text, with what was
/// written through this object: that which was loaded, until a save finds that another program has changed
/// it, or until Reload.
///
/// A write is durable when it returns. Between Hold and Release the writes are kept in memory; the outermost
/// Release makes them durable together. A value that stands in the file already writes nothing. A save
/// replaces the file as a whole, atomically, and one process at a time: it takes the lock, reads the file,
/// and writes what we have written into the text that it finds. Success is told when the file is what was
/// written, whatever others have done to the lock and to temporary files meanwhile. A save that fails raises
/// and keeps the changes; the next write or Release tries again.
///
/// A section that another program has removed or renamed in the file is added again by a save when each key
/// that it had in the text that was loaded was written; when only a part of it was written the save, and
/// Reload, raise 75. A file that was deleted or emptied gets whatever was written.
///
/// A value that another program has changed since it was read is overwritten by a write. A program that
/// changes what it has read (a counter, one coefficient of a record) reads and writes inside Edit: no other
/// process comes in between.
///
/// A UTF-16 file with a byte-order mark, of either byte order, is edited like any other and stays UTF-16.
///
/// Errors are QuorError with the source "QuorIniFile" and the file's name in the description: bad file name
/// 52, device error 57, disk full 61, permission denied 70, path not found 76, anything else that cannot be
/// read or written 75, among it UTF-16 text that is not valid or has no byte-order mark, and names that the
/// file could not give back; why, for programs, in QuorError::Cause(). A file that another process has been
/// saving for ten seconds is 70, "In use by" whom. A lack of memory is std::bad_alloc. After any of them the
/// file is as it was or complete, and the object holds what it held before.
class QUORINIFILE_EXPORT IniStore final : public INIFile {
public:
    /// On the files of this computer.
    IniStore();
    /// On other files, which must outlive the store: those of a test, which fail when they are told to.
    explicit IniStore(IniFileSystem& files);
    IniStore(const IniStore&) = delete;
    IniStore& operator=(const IniStore&) = delete;
    /// Saves what is still held; failures are swallowed, so a caller that must know calls Release. What a
    /// save has raised for is not tried again.
    ~IniStore() override;

    /// Remembers the name; the file is not touched. A relative name means the file in what is the current
    /// folder now, whatever becomes of that. An empty name, or one that no file can have, is error 52.
    /// Pending changes of another file are saved first, even when held, unless a record among them was
    /// abandoned. The same name changes nothing.
    void SetFileName(std::wstring_view fileName) override;
    [[nodiscard]] std::wstring_view FileName() const;
    /// Creates the folder of the file, and those above it, where they are missing. What is created is for the
    /// user alone. Raises 52 without a file name, 76 where a file stands in the place of a folder, 70 or 75
    /// where it is not possible for another reason.
    void MakeFolder();
    /// Without a call the section without a name is selected.
    void SetSection(std::wstring_view section) override;
    [[nodiscard]] std::wstring_view Section() const;

    [[nodiscard]] bool ReadBoolean(std::wstring_view key, bool& value) override;
    [[nodiscard]] bool ReadDouble(std::wstring_view key, double& value) override;
    [[nodiscard]] bool ReadInteger(std::wstring_view key, std::int16_t& value) override;
    [[nodiscard]] bool ReadString(std::wstring_view key, std::wstring& value) override;
    void WriteBoolean(std::wstring_view key, bool value) override;
    /// A comment stands behind the value as " ; comment"; an empty one leaves that of the line as it is.
    void WriteDouble(std::wstring_view key, double value, std::wstring_view comment) override;
    void WriteInteger(std::wstring_view key, std::int16_t value, std::wstring_view comment) override;
    void WriteString(std::wstring_view key, std::wstring_view value) override;

    /// Whether there is a text: a file, or what was written for one that is not there yet. Without one there
    /// are no sections.
    [[nodiscard]] bool HasText();
    /// The text as it is now, with what was written: the bytes of the file, of a UTF-16 file the same text as
    /// UTF-8. The view lives as long as what Lines returns. Raises 53 when there is no file.
    [[nodiscard]] std::string_view Text();
    /// The names of all sections, in the order of the file with what was written; of a name that stands
    /// several times the first. Raises 53 when there is no file.
    [[nodiscard]] std::vector<std::wstring> Sections();
    /// Lines in which something may be wrong, such as a key that stands twice in its section, in their order.
    /// They are lines of the text that was loaded or last saved: what is held does not count. Raises 53 when
    /// there is no file.
    [[nodiscard]] std::vector<IniWarning> Warnings();
    /// Whether a new section can have that name: no line break, no ']' that would end it, nothing that a file
    /// could not give back.
    [[nodiscard]] static bool CanNameSection(std::wstring_view name);
    /// Whether there is a section of that name, also one without keys. Raises 53 when there is no file.
    [[nodiscard]] bool HasSection(std::wstring_view name);
    /// The lines of the text as it is now, with what was written, from a line on that an earlier walk through
    /// the same text has passed. Raises 53 when there is no file.
    [[nodiscard]] IniLines Lines(const IniLines::Place& from = {});
    /// Another number whenever the text may have become another one: something was written or discarded, or
    /// the text of another program was loaded. For those who keep what Lines has told.
    [[nodiscard]] std::uint64_t TextNumber() const;
    /// Removes a section with its header, the comments that touch the header from above, and its body down to
    /// the last key and the comments that touch that one. Comments that stand apart stay, and so do those
    /// that open the file. Later sections of that name, which nobody has read, go too. A section that is not
    /// there needs no removal. One that is written into afterwards comes back in its old place.
    void RemoveSection(std::wstring_view name);
    /// Rewrites the name in the header of a section and nothing else, and so for later sections of that name.
    /// Raises 75 when there is no section `from`, when another section has the name `to`, and when the file
    /// could not give that name back.
    void RenameSection(std::wstring_view from, std::wstring_view to);
    /// Forgets what was written, removed and renamed and is not in the file yet: what was held, or what could
    /// not be saved. The file is loaded anew when it is next needed.
    void Discard();

    /// Calls `edit` under the lock between processes: it reads the file as it is then, through this store,
    /// and what it writes is saved together before Edit returns. No update of another process that saves
    /// through a store, or edits, is lost. Where there is no file yet, reads raise 53 until something is
    /// written.
    ///
    /// The function is called again, upon the file as it is then, when a program that takes no lock has
    /// changed the file meanwhile: it must be repeatable, with no effects but those on this store. Others
    /// wait for the lock ten seconds at most, another store on the same file in this process too: it must be
    /// short, and must not wait for a person. A child that it forks must not return from it.
    ///
    /// When the function raises, its exception passes through; when the file cannot be saved, Edit raises
    /// what a save raises. Either way nothing is saved, what the function wrote is forgotten, as by Discard,
    /// and Edit can be called again. (As after every save, an error of the disk may come when the file is
    /// complete and new but may not outlive a power cut.) A function that writes nothing, or what stands
    /// there already, leaves the file alone. Changes that an earlier save has failed for are saved first.
    ///
    /// Between Hold and Release Edit raises 75 and does nothing. Inside an edit:
    /// - Edit calls the function as a part of the outer edit, which saves. One that raises leaves nothing to
    ///   be saved by the outer one.
    /// - Hold and Release nest and save nothing; what is still held is saved with the rest. Abandon, also
    ///   without a Hold, makes the edit save nothing and raise 75 at its end, as Release does.
    /// - The function begins with the section that was selected before, which is selected again afterwards.
    /// - Discard forgets what the edit has written so far; Reload keeps it.
    /// - SetFileName with another name raises 75.
    void Edit(const std::function<void()>& edit);

    void Hold() override;
    /// Without a Hold it does nothing. Raises 75, and does as Discard does, when a bracket inside this one
    /// was abandoned.
    void Release() override;
    /// Without a Hold it does nothing. That of the outermost bracket does as Discard does.
    void Abandon() override;

    /// Whether the file holds another text now than the one that was loaded or last saved; that it has come
    /// or gone counts too. Costs a look at the folder, or reading the file when it was touched. False as long
    /// as nothing was loaded. Raises what loading would raise.
    [[nodiscard]] bool FileChanged();
    /// Whether a save would be refused, because this user may not write the file or nothing can be put into
    /// its folder. A symbolic link is followed.
    [[nodiscard]] bool IsReadOnly() const;
    /// Whether a save to `fileName` would be a save of the own file, whichever links lead there.
    /// Raises when the system does not tell.
    [[nodiscard]] bool IsOwnFile(std::wstring_view fileName) const;
    /// What saves of the file have left beside it, as paths from where the name of the file starts. Of
    /// interrupted saves nothing as long as a save is under way, or where nobody can tell (a file system
    /// without locks, a lock file that only another user may open).
    [[nodiscard]] std::vector<IniLeftover> Leftovers() const;
    /// Gives another file the text as it is now, with what was written, in place of whatever stands there: in
    /// the same encoding, durably and at once, as a save does it, and through symbolic links. This object
    /// stays with its own file, and what was held for that stays held. Raises 53 when there is no text, and
    /// what a save raises; the other file is as it was, then. The own file is saved as ever, be it held or
    /// not; where it is gone it gets the whole text. Raises 75 inside an edit, which saves by itself, and
    /// when a bracket was abandoned.
    void SaveAs(std::wstring_view fileName);
    /// Loads the file as it is now. What was written and not saved stays, upon the new text. On an error the
    /// object is as before. Before the first read or write there is nothing to load anew.
    void Reload();

private:
    class Session;
    std::unique_ptr<Session> m_session;
};

} // namespace QuorIniFile
