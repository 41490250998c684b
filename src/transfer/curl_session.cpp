#include "transfer/curl_session.h"

namespace tarnel {

CurlSession::CurlSession() : easy_(curl_easy_init()), multi_(curl_multi_init()) {
    if (easy_ != nullptr) curl_easy_setopt(easy_, CURLOPT_ERRORBUFFER, errorText_);
}

void CurlSession::reset() {
    curl_easy_reset(easy_);
    errorText_[0] = '\0';
    curl_easy_setopt(easy_, CURLOPT_ERRORBUFFER, errorText_);
}

CurlSession::~CurlSession() {
    // The easy handle is never left in the multi handle, so the order is free; the multi
    // handle's cleanup closes the connection it kept.
    if (easy_ != nullptr) curl_easy_cleanup(easy_);
    if (multi_ != nullptr) curl_multi_cleanup(multi_);
}

}  // namespace tarnel
