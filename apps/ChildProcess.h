#pragma once

#include <functional>
#include <stdexcept>
#include <string>

namespace physics::apps {

/// A child process ended before it had given its answer; the message says how.
class ChildDied : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Runs `work` in a copy of this process and gives its answer, so that a crash there harms nobody. What `work`
/// changes stays in the copy; it must not throw. Throws `ChildDied`, and `std::system_error` when there can be
/// no child.
std::string answerOfChild(const std::function<std::string()>& work);

} // namespace physics::apps
