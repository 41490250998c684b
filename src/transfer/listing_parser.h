#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "transfer/ftp_file_entry.h"

namespace tarnel {

// Readers of the plain text servers send: LIST rows in Unix and MS-DOS form, name lists and
// header text. Rows they cannot read are skipped silently, never reported.

// Every row of `text` that either form reads, in server order; folders only if asked for.
std::vector<FTPFileEntry> parseListing(std::string_view text, bool includeDirectories);

// `-rw-r--r-- 1 owner group 1024 Jan 15 10:30 name`; links count as files.
std::optional<FTPFileEntry> parseUnixLine(std::string_view line);
// `01-15-24  10:30AM  <DIR>  name` or `01-15-24  10:30AM  12345 name`.
std::optional<FTPFileEntry> parseDosLine(std::string_view line);

// The rows of an MLSD answer, `type=file;size=1024;modify=20240115103000; name`: files and
// folders as their type fact says, links as files, each name whole (" -> " and blanks
// included); `cdir`, `pdir`, other types and hidden names are left out, as LIST's reader does.
// nullopt when the text has lines and none of them is a row.
std::optional<std::vector<FTPFileEntry>> parseMachineListing(std::string_view text,
                                                             bool includeDirectories);

// The figure of the first "Content-Length:" line, case ignored; nothing if it is unusable.
std::optional<std::int64_t> parseContentLength(std::string_view headers);

// The names of a name list: trimmed, without empty and dot names.
std::vector<std::string> parseNameList(std::string_view text);

}  // namespace tarnel
