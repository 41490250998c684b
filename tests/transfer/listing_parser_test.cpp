#include "transfer/listing_parser.h"

#include <gtest/gtest.h>

namespace tarnel {
namespace {

using Entries = std::vector<FTPFileEntry>;

FTPFileEntry file(std::string name, std::int64_t size) {
    return {std::move(name), size, false, ""};
}
FTPFileEntry dir(std::string name, std::int64_t size) {
    return {std::move(name), size, true, ""};
}

TEST(ListingParser, readsUnixServersAsTheySendIt) {
    // vsftpd: numeric owners, CRLF line ends.
    const char* vsftpd =
        "drwxr-xr-x    2 1000     1000         4096 Jan 15  2024 archive\r\n"
        "-rw-r--r--    1 1000     1000         1024 Jan 15 10:30 report.pdf\r\n";
    EXPECT_EQ(parseListing(vsftpd, true),
              (Entries{dir("archive", 4096), file("report.pdf", 1024)}));
    EXPECT_EQ(parseListing(vsftpd, false), (Entries{file("report.pdf", 1024)}));

    // ProFTPD: a summary line, names with blanks, a link, a 64-bit size.
    const char* proftpd =
        "total 102412\n"
        "-rw-r--r--   1 ftp      ftp      6442450944 Mar  7 09:12 big  file.bin\n"
        "lrwxrwxrwx   1 ftp      ftp            12 Mar  7 09:12 latest -> big  file.bin\n"
        "-rw-r--r--   1 ftp      ftp            10 Mar  7 09:12 a -> b\n";
    EXPECT_EQ(parseListing(proftpd, false),
              (Entries{file("big  file.bin", 6442450944), file("latest", 12), file("a", 10)}));

    // Pure-FTPd lists "." and ".."; hidden files, devices and pipes stay out too.
    const char* pureftpd =
        "drwxr-xr-x    2 1001       1001             4096 Mar  7 09:12 .\n"
        "drwxr-xr-x    3 0          0                4096 Mar  7 09:00 ..\n"
        "-rw-r--r--    1 1001       1001               10 Mar  7 09:12 .hidden\n"
        "crw-rw-rw-    1 0          0              1,   3 Mar  7 09:12 null\n"
        "prw-r--r--    1 1001       1001                0 Mar  7 09:12 fifo\n"
        "-rw-r--r--    1 1001       1001          5242880 Mar  7 09:12 photo.jpg\n";
    EXPECT_EQ(parseListing(pureftpd, true), (Entries{file("photo.jpg", 5242880)}));
}

TEST(ListingParser, dropsRowsWhoseColumnsDoNotFit) {
    // No group column: the size column is the month, so the row is dropped, and the DOS reader
    // cannot save it.
    EXPECT_EQ(parseUnixLine("-rw-r--r-- 1 owner 1024 Jan 15 10:30 my file.txt"), std::nullopt);
    EXPECT_EQ(parseListing("-rw-r--r-- 1 ftp ftp abc Jan 15 10:30 x.txt", true), Entries{});
    EXPECT_EQ(parseUnixLine("-rw-r--r-- 1 ftp ftp 10 Jan 15 10:30"), std::nullopt);
    // Tabs do not split columns.
    EXPECT_EQ(parseUnixLine("-rw-r--r--\t1 ftp ftp 10 Jan 15 10:30 x"), std::nullopt);
    EXPECT_EQ(parseUnixLine("-rw-r--r-- 1 ftp ftp +10 Jan 15 10:30 x"), file("x", 10));
}

TEST(ListingParser, readsDosRowsOfWindowsServers) {
    const char* iis =
        "03-07-24  09:12AM       <DIR>          Uploads\r\n"
        "03-07-24  09:12AM       <DIR>          .git\r\n"
        "03-07-24  09:13PM              1048576 data  2024.csv\r\n"
        "03-07-24  09:13PM                  abc broken.csv\r\n";
    // Runs of blanks in a DOS name collapse to one.
    EXPECT_EQ(parseListing(iis, true),
              (Entries{dir("Uploads", 0), file("data 2024.csv", 1048576)}));
    EXPECT_EQ(parseDosLine("2024-03-07 09:12 10 x"), std::nullopt);
}

TEST(ListingParser, namesAndHeaders) {
    // Some servers answer a name list with full paths; only dot names go.
    EXPECT_EQ(parseNameList("/in/a.txt\r\n/in/b c.txt\r\n.\r\n..\r\n  \r\n.profile\n"),
              (std::vector<std::string>{"/in/a.txt", "/in/b c.txt"}));
    // U+2028 ends a line; U+00A0 is trimmed like a blank.
    EXPECT_EQ(parseNameList("\u00A0caf\u00E9.txt\u2028b.txt\u00A0"),
              (std::vector<std::string>{"caf\u00E9.txt", "b.txt"}));
    EXPECT_EQ(parseContentLength("Last-Modified: x\r\nCONTENT-LENGTH: 42\r\n"), 42);
    EXPECT_EQ(parseContentLength("Content-Length:\r\nContent-Length: 42\r\n"), std::nullopt);
    EXPECT_EQ(parseContentLength("Content-Length: 99999999999999999999\r\n"), std::nullopt);
    EXPECT_EQ(parseContentLength("Accept-ranges: bytes\r\n"), std::nullopt);
}

}  // namespace
}  // namespace tarnel
