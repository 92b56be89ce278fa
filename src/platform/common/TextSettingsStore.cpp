#include "platform/common/TextSettingsStore.h"

#include "core/Path.h"
#include "core/TextLines.h"
#include "platform/common/SettingsText.h"

namespace orlo {

TextSettingsStore::TextSettingsStore(FileSystem& files, std::string path)
    : files_(files), path_(std::move(path)) {}

InitialisationFile& TextSettingsStore::Loaded() {
    if (!text_) {
        const auto bytes = ReadWholeFile(files_, path_);
        unreadable_ = !bytes && (files_.FileExists(path_) || files_.FolderExists(path_));
        text_ = ReadSettingsText(bytes ? *bytes : std::string());
    }
    return *text_;
}

std::optional<std::string> TextSettingsStore::Get(std::string_view keyPath, std::string_view name) {
    return Loaded().Get(keyPath, name);
}

bool TextSettingsStore::Set(std::string_view keyPath, std::string_view name, std::string_view value) {
    InitialisationFile& text = Loaded();
    if (text.Get(keyPath, name) == value) return true;
    if (!text.Set(keyPath, name, value)) return false;
    changed_ = true;
    return true;
}

bool TextSettingsStore::Flush() {
    if (!changed_) return true;
    if (unreadable_) return false;
    const std::string folder = ParentFolder(path_);
    if (!folder.empty() && !files_.CreateFolders(folder)) return false;
    const auto file = files_.CreateReplacing(path_);
    if (!file || !file->Write(Loaded().Text()) || !file->Commit()) return false;
    changed_ = false;
    return true;
}

}  // namespace orlo
