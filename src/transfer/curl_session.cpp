#include "transfer/curl_session.h"

#include <algorithm>
#include <optional>

namespace tarnel {
namespace {

// libcurl 7.88 can leave an FTP operation with nothing to wait for: when the server's EPSV or
// PASV reply comes in quickly, the data connection is only opened at the next wake-up, which
// curl_easy_perform's own loop makes after a whole second. After any activity the wait is
// therefore short, and doubles while nothing happens, up to libcurl's own second: the stall
// costs a millisecond, and a slow server a few extra wake-ups per reply.
constexpr int shortestWaitMs = 1;
constexpr int longestWaitMs = 1000;

}  // namespace

CurlSession::CurlSession() : easy_(curl_easy_init()), multi_(curl_multi_init()) {}

CurlSession::~CurlSession() {
    // The easy handle is never left in the multi handle, so the order is free; the multi
    // handle's cleanup closes the connection it kept.
    if (easy_ != nullptr) curl_easy_cleanup(easy_);
    if (multi_ != nullptr) curl_multi_cleanup(multi_);
}

CURLcode CurlSession::perform() {
    if (curl_multi_add_handle(multi_, easy_) != CURLM_OK) return CURLE_FAILED_INIT;
    std::optional<CURLcode> result;
    CURLMcode problem = CURLM_OK;
    int wait = shortestWaitMs;
    while (!result && problem == CURLM_OK) {
        int running = 0;
        problem = curl_multi_perform(multi_, &running);
        if (problem == CURLM_OK && running == 0) {
            int left = 0;
            if (CURLMsg* message = curl_multi_info_read(multi_, &left))
                result = message->data.result;
        }
        if (!result && problem == CURLM_OK) {
            int ready = 0;
            problem = curl_multi_poll(multi_, nullptr, 0, wait, &ready);
            wait = ready > 0 ? shortestWaitMs : std::min(wait * 2, longestWaitMs);
        }
    }
    curl_multi_remove_handle(multi_, easy_);
    // A broken multi handle reads as curl_easy_perform would report it.
    if (!result)
        return problem == CURLM_OUT_OF_MEMORY ? CURLE_OUT_OF_MEMORY : CURLE_BAD_FUNCTION_ARGUMENT;
    return *result;
}

}  // namespace tarnel
