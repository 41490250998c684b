#pragma once

#include <string>

namespace tarnel {

// Shows user notifications on the desktop. A notification posted with the identifier of an
// earlier one replaces it instead of adding another.
class Notifier {
public:
    virtual ~Notifier() = default;

    // `withSound`: the desktop's default notification sound plays.
    virtual void post(const std::string& identifier, const std::string& title,
                      const std::string& body, bool withSound) = 0;
};

}  // namespace tarnel
