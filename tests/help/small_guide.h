#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace torvane::testing {

/// A guide of two chapters without a fault, in a folder of its own, of which tests spoil one thing.
class SmallGuide : public ::testing::Test
{
protected:
    void SetUp() override
    {
        put(QStringLiteral("chapters.txt"), "one\ntwo\n");
        put(QStringLiteral("en/one.html"),
            "<h1>First &amp; best</h1>\n<p>See <a href=\"two.html#sea\">the sea</a>.</p>\n"
            "<h2 id=\"top\">The <b>top</b></h2>\n<p><img src=\"../pictures/dot.svg\" width=\"4\" "
            "height=\"4\" "
            "alt=\"A dot\"></p>\n");
        put(QStringLiteral("de/one.html"),
            "<h1>Erstes &amp; bestes</h1>\n<p>Siehe <a href=\"two.html#sea\">die See</a>.</p>\n"
            "<h2 id=\"top\">Das <b>Oben</b></h2>\n<p><img src=\"../pictures/dot.svg\" width=\"4\" "
            "height=\"4\" "
            "alt=\"Ein Punkt\"></p>\n");
        put(QStringLiteral("en/two.html"), "<h1>Second</h1>\n<h2 id=\"sea\">Sea</h2>\n<p>Up to "
                                           "<a href=\"#sea\">here</a>, <a href=\"one.html\">back</a>.</p>\n");
        put(QStringLiteral("de/two.html"),
            "<h1>Zweites</h1>\n<h2 id=\"sea\">Großes Meer</h2>\n<p>Bis "
            "<a href=\"#sea\">hier</a>, <a href=\"one.html\">zurück</a>.</p>\n");
        put(QStringLiteral("pictures/dot.svg"), dot);
    }

    QString folder() const { return m_folder.path(); }

    void put(const QString& name, const QByteArray& bytes) const
    {
        const QString path = m_folder.filePath(name);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    /// Replaces a piece of a file, which is in it.
    void spoil(const QString& name, const QByteArray& piece, const QByteArray& replacement) const
    {
        QFile file(m_folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QByteArray bytes = file.readAll();
        file.close();
        ASSERT_TRUE(bytes.contains(piece)) << piece.toStdString();
        put(name, bytes.replace(piece, replacement));
    }

    const QByteArray dot =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"4\" height=\"4\"><rect width=\"4\" "
        "height=\"4\"/></svg>";

private:
    QTemporaryDir m_folder;
};

} // namespace torvane::testing
