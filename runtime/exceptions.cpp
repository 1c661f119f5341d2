#include "runtime/exceptions.h"

CTesseraException::CTesseraException(int code, const std::string& info, bool user)
    : code_(code), info_(info), user_(user) {}

CTesseraException::~CTesseraException() = default;

int CTesseraException::GetCode() const noexcept {
    return code_;
}

const std::string& CTesseraException::GetInfo() const noexcept {
    return info_;
}

bool CTesseraException::IsUserException() const noexcept {
    return user_;
}

namespace tessera {

Exception::Exception(const std::string& message, const std::exception* inner)
    : std::runtime_error("tessera::Exception"), inner_(inner), message_(message) {}

const std::string& Exception::message() const noexcept {
    return message_;
}

const std::exception* Exception::inner() const noexcept {
    return inner_;
}

StringParseException::StringParseException(const std::string& typeName, const std::string& value)
    : ConversionException("'" + value + "' could not be parsed as " + typeName) {}

OutOfRangeException::OutOfRangeException(const std::string& sourceType, const std::string& targetType,
                                         const std::string& value)
    : ConversionException("Source value '" + value + "' of type " + sourceType + " cannot be converted to " +
                          targetType) {}

ValueNotRepresentableException::ValueNotRepresentableException(const std::string& typeName,
                                                               const std::string& reason)
    : ConversionException("Source value of type " + typeName + " cannot be converted to string: " + reason) {}

Error::Error(const std::string& message, const std::exception* inner)
    : std::logic_error("tessera::Error"), inner_(inner), message_(message) {}

const std::string& Error::message() const noexcept {
    return message_;
}

const std::exception* Error::inner() const noexcept {
    return inner_;
}

CXmlException::CXmlException(int code, const std::string& info) : CTesseraException(code, info, false) {}

// Out of line, so that each class's type information stands in this library alone.
Exception::~Exception() = default;
ConversionException::~ConversionException() = default;
StringParseException::~StringParseException() = default;
OutOfRangeException::~OutOfRangeException() = default;
ValueNotRepresentableException::~ValueNotRepresentableException() = default;
InvalidArgumentException::~InvalidArgumentException() = default;
InvalidOperationException::~InvalidOperationException() = default;
DataSourceUnavailableException::~DataSourceUnavailableException() = default;
DataTargetUnavailableException::~DataTargetUnavailableException() = default;
Error::~Error() = default;
CXmlException::~CXmlException() = default;

} // namespace tessera
