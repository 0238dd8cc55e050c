#include "platform/code_page.h"
#include "require.h"
#include "store/scratch_files.h"

#include <algorithm>

// The input is a file of quoted lines, as the scratch files of divisions and ships are.

namespace {

using namespace torvane;

bool isOneLine(const QString& value)
{
    return !value.contains(u'\r') && !value.contains(u'\n');
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QStringList values = parseQuotedLines(bytes);
    require(std::all_of(values.begin(), values.end(), isOneLine));

    // What was read is written so that it reads the same, a line each.
    const QByteArray written = quotedLines(values);
    require(parseQuotedLines(written) == values);
    require(written.count('\n') == values.size());

    // Any text becomes one line, whatever breaks it holds, and comes to rest.
    const QStringList whole{fromCodePage(bytes)};
    const QStringList read = parseQuotedLines(quotedLines(whole));
    require(read.size() == 1);
    require(parseQuotedLines(quotedLines(read)) == read);
    return 0;
}
