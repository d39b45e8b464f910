#include "LineWriter.h"

#include <ios>
#include <stdexcept>

namespace satwecvt {

namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 20;

}  // namespace

CLineWriter::CLineWriter(const std::string& filePath)
    : path(filePath),
      file(filePath, std::ios::binary | std::ios::trunc),
      buffer(kBufferSize)
{
    CheckFile();
}

void CLineWriter::Text(std::string_view text)
{
    MakeRoom();
    Put(text);
    EndLine();
}

void CLineWriter::Texts(std::span<const std::string_view> texts)
{
    for (const std::string_view text : texts) {
        Text(text);
    }
}

void CLineWriter::Close(std::int64_t expectedLines)
{
    Flush();
    file.close();
    CheckFile();
    if (lines != expectedLines) {
        throw std::logic_error("wrote " + std::to_string(lines) + " lines instead of " + std::to_string(expectedLines));
    }
}

void CLineWriter::Flush()
{
    file.write(buffer.data(), static_cast<std::streamsize>(used));
    used = 0;
    CheckFile();
}

void CLineWriter::CheckFile() const
{
    if (!file) {
        throw std::runtime_error("cannot write " + path);
    }
}

}  // namespace satwecvt
