#pragma once

#include "guide/write_guide.h"
#include "shell/help_browser.h"
#include "shell/help_frm.h"
#include "shell/help_viewer.h"
#include "support/editor_fixture.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

#include <gmock/gmock.h>

namespace torvane::testing {

/// The help file that comes with the editor.
inline const QByteArray& delivered()
{
    static const QByteArray file = guideFile(readGuide(QStringLiteral(GUIDE_FILES)));
    return file;
}

/// The help window without an editor, on a file in a folder of its own.
class Help : public ::testing::TestWithParam<Language>
{
protected:
    QString path() const { return m_folder.filePath(QStringLiteral("SE_README.HLP")); }
    void put(const QByteArray& bytes) const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    /// Opens the delivered guide.
    void open()
    {
        put(delivered());
        viewer.showContents(path());
        ASSERT_NE(viewer.window(), nullptr);
        settle();
    }

    bool german() const { return GetParam() == Language::German; }
    HelpFrm& window() const { return *viewer.window(); }
    HelpBrowser& guide() const { return *control<HelpBrowser>(window(), QStringLiteral("txtGuide")); }
    QTreeWidget& contents() const { return *control<QTreeWidget>(window(), QStringLiteral("treContents")); }
    void clickEntry(QTreeWidgetItem* entry) const
    {
        contents().scrollToItem(entry);
        QTest::mouseClick(contents().viewport(), Qt::LeftButton, Qt::NoModifier,
                          contents().visualItemRect(entry).center());
        settle();
    }
    QPushButton* button(const char* name) const
    {
        return control<QPushButton>(window(), QString::fromLatin1(name));
    }
    QLineEdit* box() const { return control<QLineEdit>(window(), QStringLiteral("txtFind")); }
    QString found() const { return control<QLabel>(window(), QStringLiteral("lblFound"))->text(); }
    QString selected() const { return guide().textCursor().selectedText(); }
    void search(const QString& text) const
    {
        box()->clear();
        type(box(), text);
        press(box(), Qt::Key_Return);
        settle();
    }
    const HelpBook& book() const { return m_book; }

    ScriptedMessageBoxes boxes;
    WindowHelpViewer viewer{GetParam(), boxes};

private:
    QTemporaryDir m_folder;
    const HelpBook m_book = HelpBook::parse(delivered(), GetParam()).value();
};

} // namespace torvane::testing
