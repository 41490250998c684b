#include "app/command_line.h"

#include <string_view>

namespace tarnel {

CommandLine CommandLine::parse(int argc, char** argv) {
    CommandLine c;
    for (int i = 1; i < argc; ++i) {
        std::string_view arg = argv[i];
        if (arg == "--headless") {
            c.headless = true;
        } else if (arg == "--list") {
            c.list = true;
        } else if (arg == "--status") {
            c.status = true;
        } else if (arg == "--json") {
            c.json = true;
        } else if (arg == "--help" || arg == "-h") {
            c.help = true;
        } else if (arg == "--import") {
            if (i + 1 >= argc) {
                c.error = "--import needs a file";
                return c;
            }
            c.importFile = argv[++i];
        } else if (arg.starts_with("--import=")) {
            c.importFile = std::string(arg.substr(9));
        } else {
            c.error = "unknown option: " + std::string(arg);
            return c;
        }
    }
    if (c.json && !c.status) c.error = "--json goes with --status";
    return c;
}

std::string CommandLine::helpText() {
    return R"(Usage: tarnel [--headless] [--import FILE] [--list] [--status [--json]]

Tarnel watches FTP, FTPS and SFTP folders and pulls each file once its size has settled.
With no option it starts its tray application; a second launch shows the running one's popup.

  --headless      Run every enabled connection without the tray icon, for servers and
                  scripts. Only one Tarnel runs on a set of stores: a second one says which
                  process runs already and exits with status 2. Log lines go to standard output as well as to the log file.
                  SIGINT or SIGTERM stops the connections and exits with status 0; a transfer
                  under way resumes at the next start.
  --import FILE   Add connections from FILE, a JSON array of connection records. A record
                  needs only "transferProtocol" ("FTP", "FTPS" or "SFTP"), "host", "username",
                  "password" or "sshKeyPath", "remotePath" and "localPath"; every key left out
                  takes its default (a new "id", the protocol's port, ...), and the import says
                  which. The stored form, with every key, imports as it stands. A record whose
                  "id" is already known replaces that connection; any other is added. If any
                  record cannot be read, nothing is imported, the record (by index, from 0)
                  and the key at fault are named, and the exit status is 2. Without
                  --headless, Tarnel exits after the import. While Tarnel runs on the same
                  stores, the running one takes the records and answers.
  --list          Print the stored connections and exit, starting nothing.
  --status        Ask the Tarnel running on these stores (headless or tray) how each
                  connection is doing: its state, the last poll, the files waiting for their
                  size to settle and those downloading, the last error, today's files and
                  bytes; one line each, then one for all. With --json, one JSON document.
                  Exit status 0 when all is well, 1 when a connection is in error, 3 when no
                  Tarnel runs on these stores, 4 when the running one does not answer.
  --help          Show this text.

Stores (set the XDG variables to keep a run apart):
  $XDG_CONFIG_HOME/Tarnel/Tarnel.conf     settings and connections
  $XDG_DATA_HOME/Tarnel/                  journal.db (downloaded files, partial downloads,
                                          history), known_hosts
  $XDG_STATE_HOME/Tarnel/Tarnel.log       the log (Tarnel.log.1 the one before, from 10 MB)
)";
}

}  // namespace tarnel
