#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace orlo::world {

// Writes a text file of bytes with CR LF line ends through one large buffer. Throws std::runtime_error,
// naming the file, when it cannot be created or written.
class TextFile {
  public:
    explicit TextFile(const std::filesystem::path& path);
    TextFile(const TextFile&) = delete;
    TextFile& operator=(const TextFile&) = delete;

    TextFile& Put(std::string_view text) {
        buffer.append(text);
        return *this;
    }
    TextFile& Put(char character) {
        buffer.push_back(character);
        return *this;
    }
    // Decimal, with zeros in front up to `digits` digits.
    TextFile& PutNumber(int value, int digits = 1);
    void EndLine();
    void Line(std::string_view text) {
        Put(text);
        EndLine();
    }
    // Must be called once at the end: the only place where the last failure can be told.
    void Close();

  private:
    void Flush();

    std::filesystem::path path;
    std::ofstream file;
    std::string buffer;
};

// Little-endian bytes of a binary file, built in memory.
class Bytes {
  public:
    std::uint32_t Size() const { return static_cast<std::uint32_t>(data.size()); }
    void Put16(std::uint16_t value);
    void Put32(std::uint32_t value);
    void PutSigned(std::int32_t value) { Put32(static_cast<std::uint32_t>(value)); }
    void PutSingle(float value);
    void PutZeroText(std::string_view text);
    // Its length in 16 bits in front.
    void PutText16(std::string_view text);
    void Fill(std::uint32_t count, char value = 0) { data.append(count, value); }
    // Overwrites four bytes that are there already.
    void Set32(std::uint32_t offset, std::uint32_t value);
    const std::string& Data() const { return data; }

  private:
    std::string data;
};

// Writes the bytes to a new file. Throws as TextFile does.
void WriteBytes(const std::filesystem::path& path, std::string_view bytes);

// "7" with 3 digits is "007".
std::string PadNumber(int value, int digits);

}  // namespace orlo::world
