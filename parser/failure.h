// Why an operation of a parser failed, for callers that cannot receive an exception.
#ifndef XTTML_PARSER_FAILURE_H
#define XTTML_PARSER_FAILURE_H

#include "xmltree/load_options.h"

#include <cstdint>
#include <string>

/// What went wrong, in the numbers of the C interface's statuses.
enum failure_kind_e : std::int32_t {
    FAILURE_NONE = 0,
    FAILURE_NO_ROOT_ELEMENT = 1,
    FAILURE_UNREADABLE = 2,
    FAILURE_MALFORMED = 3,
    FAILURE_REFUSED = 4,
    FAILURE_BAD_VALUE = 5,
    FAILURE_NO_IMAGE_DATA = 6,
    FAILURE_OUT_OF_MEMORY = 7,
    FAILURE_OTHER = 8
};

struct Failure {
    failure_kind_e eKind = FAILURE_NONE;
    std::string strReason;     ///< one line of UTF-8, the place before it when it is known
    std::uint64_t uLine = 0;   ///< of the document, counted from 1; 0: not known
    std::uint64_t uColumn = 0; ///< of the line, counted from 1; 0: not known
};

/// The exception that is being handled, as a failure.
/// @param fault what a load has said of it
/// @param attribute the attribute that was being read; null: none
Failure rDescribeException(const LoadFault& fault, const char* attribute) noexcept;

#endif
