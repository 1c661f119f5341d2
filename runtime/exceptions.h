// What the runtime and the tree operations throw.
//
// Every class is exported with its type information, so that a player in another binary catches it by type.
// `what()` is a fixed text; the text that tells what happened is `message()`.
#ifndef XTTML_RUNTIME_EXCEPTIONS_H
#define XTTML_RUNTIME_EXCEPTIONS_H

#include "runtime/export.h"

#include <exception>
#include <stdexcept>
#include <string>

/// A coded failure; stands apart from the standard exceptions.
class XTTML_API CTesseraException {
public:
    /// `user`: true when user code raised the failure, false when the runtime did.
    CTesseraException(int code, const std::string& info, bool user);
    virtual ~CTesseraException();

    /// The code that was given.
    int GetCode() const noexcept;
    /// The message; lives as long as the exception.
    const std::string& GetInfo() const noexcept;
    /// Whether user code raised the failure.
    bool IsUserException() const noexcept;

private:
    int code_;
    std::string info_;
    bool user_;
};

namespace tessera {

/// Base of the runtime's exceptions. `what()` is always "tessera::Exception".
class XTTML_API Exception : public std::runtime_error {
public:
    /// `inner`: the exception that caused this one, or null; not owned and never dereferenced here.
    explicit Exception(const std::string& message, const std::exception* inner = nullptr);
    ~Exception() override;

    /// The specific text; lives as long as the exception.
    const std::string& message() const noexcept;
    /// The exception that caused this one, or null.
    const std::exception* inner() const noexcept;

private:
    const std::exception* inner_;
    std::string message_;
};

/// A value that cannot be converted.
class XTTML_API ConversionException : public Exception {
public:
    using Exception::Exception;
    ~ConversionException() override;
};

/// Text that does not have the lexical form of its type.
class XTTML_API StringParseException : public ConversionException {
public:
    /// The message becomes "'<value>' could not be parsed as <typeName>".
    StringParseException(const std::string& typeName, const std::string& value);
    ~StringParseException() override;
};

/// A number outside the range of the type it is converted to.
class XTTML_API OutOfRangeException : public ConversionException {
public:
    /// The message becomes "Source value '<value>' of type <sourceType> cannot be converted to <targetType>".
    OutOfRangeException(const std::string& sourceType, const std::string& targetType,
                        const std::string& value);
    ~OutOfRangeException() override;
};

/// A value that has no lexical form.
class XTTML_API ValueNotRepresentableException : public ConversionException {
public:
    using ConversionException::ConversionException;
    /// The message becomes "Source value of type <typeName> cannot be converted to string: <reason>".
    ValueNotRepresentableException(const std::string& typeName, const std::string& reason);
    ~ValueNotRepresentableException() override;
};

/// A date or time field out of its range.
class XTTML_API InvalidArgumentException : public Exception {
public:
    using Exception::Exception;
    ~InvalidArgumentException() override;
};

/// An operation that the object's state does not allow, such as reading an absent attribute.
class XTTML_API InvalidOperationException : public Exception {
public:
    using Exception::Exception;
    ~InvalidOperationException() override;
};

/// A document that cannot be read.
class XTTML_API DataSourceUnavailableException : public Exception {
public:
    using Exception::Exception;
    ~DataSourceUnavailableException() override;
};

/// A document that cannot be written.
class XTTML_API DataTargetUnavailableException : public Exception {
public:
    using Exception::Exception;
    ~DataTargetUnavailableException() override;
};

/// Misuse, such as reading an absent boxed value. `what()` is always "tessera::Error".
class XTTML_API Error : public std::logic_error {
public:
    /// `inner`: the exception that caused this one, or null; not owned and never dereferenced here.
    explicit Error(const std::string& message, const std::exception* inner = nullptr);
    ~Error() override;

    /// The specific text; lives as long as the exception.
    const std::string& message() const noexcept;
    /// The exception that caused this one, or null.
    const std::exception* inner() const noexcept;

private:
    const std::exception* inner_;
    std::string message_;
};

/// A coded failure of the XML layer; never a user exception.
class XTTML_API CXmlException : public CTesseraException {
public:
    /// `info`: the message.
    CXmlException(int code, const std::string& info);
    ~CXmlException() override;
};

} // namespace tessera

#endif
