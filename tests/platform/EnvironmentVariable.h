#pragma once

#include <stdlib.h>

#include <optional>
#include <string>

namespace wxbrg {

/// Sets a variable of the environment, or takes it out, for as long as this stands.
class EnvironmentVariable {
  public:
    EnvironmentVariable(std::string name, const std::optional<std::string>& value) : name_(std::move(name)) {
        if (const char* const before = getenv(name_.c_str())) before_ = before;
        Set(value);
    }
    ~EnvironmentVariable() { Set(before_); }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

  private:
    void Set(const std::optional<std::string>& value) {
        if (value) {
            setenv(name_.c_str(), value->c_str(), 1);
        } else {
            unsetenv(name_.c_str());
        }
    }

    std::string name_;
    std::optional<std::string> before_;
};

}  // namespace wxbrg
