#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <ostream>

// Lets a failing comparison show texts as texts.
inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QByteArray& bytes, std::ostream* stream)
{
    *stream << '"' << bytes.toPercentEncoding(" []=;#\r\n").toStdString() << '"';
}
inline void PrintTo(const QStringList& list, std::ostream* stream)
{
    *stream << '[' << list.join(QStringLiteral(" | ")).toStdString() << ']';
}
