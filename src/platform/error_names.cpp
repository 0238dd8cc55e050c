#include "platform/error_names.h"

#include <algorithm>

namespace torvane {

constexpr std::array<ErrorName, 13> errorNames{{
    {RuntimeError::InvalidProcedureCall, {"This can't be done.", "Das ist nicht möglich."}},
    {RuntimeError::Overflow, {"A number is too large.", "Eine Zahl ist zu groß."}},
    {RuntimeError::OutOfMemory, {"There is not enough memory.", "Der Speicher reicht nicht aus."}},
    {RuntimeError::SubscriptOutOfRange,
     {"A value has no place in its table.", "Ein Wert hat keinen Platz in seiner Tabelle."}},
    {RuntimeError::TypeMismatch, {"A value is of the wrong kind.", "Ein Wert ist von falscher Art."}},
    {RuntimeError::FileNotFound, {"A file was not found.", "Eine Datei wurde nicht gefunden."}},
    {RuntimeError::DeviceIoError,
     {"A file could not be read or written.", "Eine Datei konnte nicht gelesen oder geschrieben werden."}},
    {RuntimeError::DiskFull, {"The disk is full.", "Der Datenträger ist voll."}},
    {RuntimeError::PermissionDenied,
     {"Access to a file was denied.", "Der Zugriff auf eine Datei wurde verweigert."}},
    {RuntimeError::PathAccessError,
     {"A file or folder can't be used.", "Eine Datei oder ein Ordner ist nicht zugänglich."}},
    {RuntimeError::PathNotFound, {"A folder was not found.", "Ein Ordner wurde nicht gefunden."}},
    {RuntimeError::NoCurrentRecord, {"There is no such record.", "Diesen Datensatz gibt es nicht."}},
    {RuntimeError::DatabaseFailure,
     {"A database could not be used.", "Eine Datenbank ist nicht zu gebrauchen."}},
}};

QString errorBoxText(const RuntimeError& error, Language language)
{
    const auto named = std::ranges::find(errorNames, error.number(), &ErrorName::number);
    return named == errorNames.end() ? error.text()
                                     : named->name.in(language) + QStringLiteral("\n\n") + error.text();
}

} // namespace torvane
