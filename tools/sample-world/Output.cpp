#include "Output.h"

#include <charconv>
#include <cstring>
#include <stdexcept>

namespace orlo::world {

namespace {

constexpr std::size_t BufferSize = 1 << 20;

[[noreturn]] void FailWriting(const std::filesystem::path& path) {
    throw std::runtime_error("cannot write " + path.string());
}

}  // namespace

TextFile::TextFile(const std::filesystem::path& path_) : path(path_), file(path_, std::ios::binary) {
    if (!file) FailWriting(path);
    buffer.reserve(BufferSize + 4096);
}

TextFile& TextFile::PutNumber(int value, int digits) {
    char text[16];
    const auto end = std::to_chars(text, text + sizeof text, value).ptr;
    for (auto length = end - text; length < digits; ++length) buffer.push_back('0');
    buffer.append(text, end);
    return *this;
}

void TextFile::EndLine() {
    buffer.append("\r\n");
    if (buffer.size() >= BufferSize) Flush();
}

void TextFile::Flush() {
    file.write(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    buffer.clear();
    if (!file) FailWriting(path);
}

void TextFile::Close() {
    Flush();
    file.close();
    if (!file) FailWriting(path);
}

void Bytes::Put16(std::uint16_t value) {
    for (int shift = 0; shift < 16; shift += 8) data.push_back(static_cast<char>((value >> shift) & 0xFF));
}

void Bytes::Put32(std::uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8) data.push_back(static_cast<char>((value >> shift) & 0xFF));
}

void Bytes::PutSingle(float value) {
    std::uint32_t bits;
    static_assert(sizeof bits == sizeof value);
    std::memcpy(&bits, &value, sizeof bits);
    Put32(bits);
}

void Bytes::PutZeroText(std::string_view text) {
    data.append(text);
    data.push_back('\0');
}

void Bytes::PutText16(std::string_view text) {
    Put16(static_cast<std::uint16_t>(text.size()));
    data.append(text);
}

void Bytes::Set32(std::uint32_t offset, std::uint32_t value) {
    for (std::uint32_t i = 0; i < 4; ++i) data[offset + i] = static_cast<char>((value >> (8 * i)) & 0xFF);
}

void WriteBytes(const std::filesystem::path& path, std::string_view bytes) {
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) FailWriting(path);
}

std::string PadNumber(int value, int digits) {
    std::string text = std::to_string(value);
    if (text.size() < static_cast<std::size_t>(digits))
        text.insert(0, static_cast<std::size_t>(digits) - text.size(), '0');
    return text;
}

}  // namespace orlo::world
