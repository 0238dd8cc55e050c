#pragma once

#include <QString>

#include <exception>

namespace torvane {

/// The platform's own error. Thrown where a failure has no message of the program's own; it ends the handler
/// that it meets, never the program. The number is the platform's error number, the text is plain and names
/// the file or value concerned.
class RuntimeError : public std::exception
{
public:
    /// Error numbers of the platform.
    enum Number {
        InvalidProcedureCall = 5,
        Overflow = 6,
        OutOfMemory = 7,
        SubscriptOutOfRange = 9,
        TypeMismatch = 13,
        FileNotFound = 53,
        DeviceIoError = 57,
        DiskFull = 61,
        PermissionDenied = 70,
        PathAccessError = 75,
        PathNotFound = 76,
        NoCurrentRecord = 3021,
        DatabaseFailure = 3049,
    };

    RuntimeError(Number number, const QString& text);

    Number number() const { return m_number; }
    const QString& text() const { return m_text; }
    const char* what() const noexcept override { return m_what.constData(); }

private:
    Number m_number;
    QString m_text;
    QByteArray m_what;
};

/// The error that fits the `errno` of a failed operation on a file: not found, permission denied, disk full,
/// or a device error. The text names `path` and the system's reason.
RuntimeError fileError(const QString& path, int systemError);

} // namespace torvane
