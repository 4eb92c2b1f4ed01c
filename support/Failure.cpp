#include "support/Failure.h"

#include <utility>

namespace wxbrg {

std::string_view RunTimeWords(std::int32_t number) {
    switch (number) {
        case FailureKind::invalidCall:
            return "invalid call or missing key";
        case FailureKind::overflow:
            return "overflow";
        case FailureKind::outOfMemory:
            return "out of memory";
        case FailureKind::typeMismatch:
            return "type mismatch";
        case FailureKind::outOfStackSpace:
            return "out of stack space";
        case FailureKind::fileNotFound:
            return "file not found";
        case FailureKind::diskFull:
            return "disk full";
        case FailureKind::fileAccess:
            return "file access error";
        case FailureKind::pathNotFound:
            return "path not found";
        case FailureKind::objectNotSet:
            return "object not set";
        case FailureKind::invalidFileFormat:
            return "invalid file format";
        case FailureKind::duplicateKey:
            return "duplicate key";
        default:
            return {};
    }
}

Failure::Failure(std::int32_t number, std::string_view detail)
    : Number(number), Description(RunTimeWords(number)) {
    if (!detail.empty()) Description.append(": ").append(detail);
}

Failure Failure::WithDescription(std::int32_t number, std::string description) {
    Failure failure(number);
    failure.Description = std::move(description);
    return failure;
}

Failure Failure::Because(FailureCause cause) && {
    Cause = std::move(cause);
    return std::move(*this);
}

FailureCause FailureCause::OfSystem(int number, std::string_view file) {
    return {Kind::system, std::error_code(number, std::generic_category()), std::string(file)};
}

FailureCause FailureCause::OfMemory(std::string_view file) {
    return {Kind::system, std::make_error_code(std::errc::not_enough_memory), std::string(file)};
}

}  // namespace wxbrg
