#include "simulator/ModelRadius.h"

#include <array>
#include <span>
#include <utility>

#include "core/InitialisationFile.h"
#include "core/Path.h"
#include "core/Text.h"
#include "core/TextLines.h"
#include "simulator/AircraftFiles.h"
#include "simulator/ByteReader.h"

namespace orlo {
namespace {

constexpr std::array<std::uint64_t, 4> kRadiusPositions = {0, 28, 4264, 4608};  // by format
constexpr std::size_t kHeadSize = 4618;  // bytes that tell the format and the radius

// The instruction that follows the radius in models without a RIFF header.
constexpr std::uint32_t kMarkDword = 0x003A0076;
constexpr std::uint16_t kMarkWord = 0xFF84;

std::string ReadHead(InputFile& file) {
    std::string head(kHeadSize, '\0');
    std::size_t length = 0;
    while (length < head.size()) {
        const std::size_t read = file.Read(std::span<char>(head.data() + length, head.size() - length));
        if (read == 0) break;
        length += read;
    }
    head.resize(length);
    return head;
}

bool HasMark(std::string_view head, std::int32_t format) {
    ByteReader reader(head, ModelRadiusPosition(format) + 4);
    const std::uint32_t dword = reader.Dword();
    const std::uint16_t word = reader.Word();
    return dword == kMarkDword && word == kMarkWord;
}

std::int32_t ModelFormat(std::string_view head) {
    if (StartsWithNoCase(head, "RIFF")) return 1;
    for (std::int32_t format = 2; format <= 3; ++format) {
        if (HasMark(head, format)) return format;
    }
    return 0;
}

}  // namespace

std::uint64_t ModelRadiusPosition(std::int32_t format) {
    return format >= 1 && format <= 3 ? kRadiusPositions[static_cast<std::size_t>(format)] : 0;
}

ModelRadius ReadModelRadius(FileSystem& files, const std::string& folder, std::string_view modelName) {
    ModelRadius model;
    const std::string modelFolder = JoinPath(folder, PartName("model", modelName));
    auto config = ReadWholeFile(files, JoinPath(modelFolder, "model.cfg"));
    if (!config) return model;
    const InitialisationFile settings(std::move(*config));
    const std::string normal = ConfigText(settings.Get("models", "normal").value_or(""));
    const std::string path = JoinPath(modelFolder, NativePath(Concat(normal, ".mdl")));
    const auto file = files.OpenForReading(path);
    if (!file || file->Size() == 0) return model;
    model.Path = path;

    const std::string head = ReadHead(*file);
    const std::int32_t format = ModelFormat(head);
    ByteReader reader(head, ModelRadiusPosition(format));
    const std::int32_t radius = reader.Int32();
    if (format == 0 || !reader.Ok()) return model;
    model.Format = format;
    model.Radius = radius;
    return model;
}

}  // namespace orlo
