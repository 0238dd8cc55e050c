#pragma once

#include "platform/picture_box.h"
#include "scenario_file/save_scenario.h"
#include "support/failing_system.h"
#include "windows/overview_fixture.h"

#include <QDir>
#include <QGuiApplication>
#include <QProgressBar>

namespace torvane::testing {

/// A run with a scenario that passes all rules: a division a side with a ship each.
class SavedScenarios : public Dialogs
{
protected:
    void openScenario(const QString& title = QStringLiteral("Convoy PQ 17"),
                      Language language = Language::English)
    {
        openNew(language);
        retype(box("TxtTitle"), title);
        saveOverview();
        ASSERT_TRUE(main().isVisible());
        boxes().clear();
        set("SCENARIOINFO", "DIVISIONCNT", "2");
        for (const char* section : {"DIVISION0", "DIVISION1"}) {
            set(section, "DIVISIONNAME", "Any");
            set(section, "SIDE", qstrcmp(section, "DIVISION0") == 0 ? "Blue" : "Red");
            set(section, "FORMATION", "Column");
        }
        set("DIVISION0SHIP0", "NAME", "Cossack");
        set("DIVISION0SHIP0", "TYPE", "DD");
        set("DIVISION0SHIP0", "XPOSITION", "1000");
        set("DIVISION1SHIP0", "NAME", "Z 1");
    }
    void set(const char* section, const char* key, const char* value)
    {
        editor().workingProfile().write(QString::fromLatin1(section), QString::fromLatin1(key),
                                        QString::fromUtf8(value));
    }
    void save() { ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuSave"))); }
    void saveAs(const std::optional<QString>& answer)
    {
        script.fileBoxes.answers = {answer};
        ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuSaveAs")));
    }

    QString scenarioFolder() const { return gameFolder() + QStringLiteral("/Scenarios/"); }
    QString scenario(const QString& name = QStringLiteral("Convoy PQ 17.scn")) const
    {
        return scenarioFolder() + name;
    }
    void putScenario(const QByteArray& bytes = "old") const
    {
        QFile file(scenario());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray scenarioBytesOf(const QString& name = QStringLiteral("Convoy PQ 17.scn")) const
    {
        QFile file(scenario(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }
    QStringList scenarioNames() const
    {
        return QDir(scenarioFolder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    /// What the scenario under edit must be saved as.
    QByteArray expected()
    {
        return scenarioBytes(editor().workingProfile(), main().targetArea(), overview().lblForceA->text());
    }

    PictureBox* panel() { return control<PictureBox>(main(), QStringLiteral("picLoad")); }
    QProgressBar* bar() { return control<QProgressBar>(main(), QStringLiteral("prgbarLoad")); }
    static bool isHourglass()
    {
        return QGuiApplication::overrideCursor() != nullptr &&
               QGuiApplication::overrideCursor()->shape() == Qt::WaitCursor;
    }
    void expectNothingUnderWay()
    {
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_FALSE(panel()->isVisible());
        EXPECT_FALSE(bar()->isVisible());
    }

    /// A mark on the map, gone after a redraw.
    void markMap()
    {
        map()->setForeColor(Qt::red);
        map()->filledBox({0, 0}, {3, 3});
        ASSERT_TRUE(isMapMarked());
    }
    bool isMapMarked() { return map()->image().pixelColor(1, 1) == QColor(Qt::red); }

    void expectBox(int index, const char* text, const char* title, MessageBox::Icon icon)
    {
        ASSERT_LT(index, boxes().size());
        EXPECT_EQ(boxes()[index].text, QString::fromUtf8(text));
        EXPECT_EQ(boxes()[index].title, QString::fromUtf8(title));
        EXPECT_EQ(boxes()[index].icon, icon);
        EXPECT_EQ(boxes()[index].buttons, MessageBox::Buttons::Ok);
    }
    void expectQuestion(int index, const char* text, const char* title, MessageBox::Icon icon,
                        MessageBox::Answer defaultAnswer)
    {
        ASSERT_LT(index, boxes().size());
        EXPECT_EQ(boxes()[index].text, QString::fromUtf8(text));
        EXPECT_EQ(boxes()[index].title, QString::fromUtf8(title));
        EXPECT_EQ(boxes()[index].icon, icon);
        EXPECT_EQ(boxes()[index].buttons, MessageBox::Buttons::YesNo);
        EXPECT_EQ(boxes()[index].defaultAnswer, defaultAnswer);
    }

    /// Gives the scenario and its folder to an ordinary user and takes its write permission away.
    void makeReadOnly() const
    {
        constexpr uid_t nobody = 65534;
        const QByteArray file = QFile::encodeName(scenario());
        ::chmod(QFile::encodeName(gameFolder()).constData(), 0755);
        if (::geteuid() == 0) {
            ASSERT_EQ(::chown(file.constData(), nobody, nobody), 0);
            ASSERT_EQ(::chown(QFile::encodeName(scenarioFolder()).constData(), nobody, nobody), 0);
        }
        ASSERT_EQ(::chmod(file.constData(), 0444), 0);
    }
    QFile::Permissions ownersRights() const
    {
        return QFile::permissions(scenario()) & (QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

private:
    PictureBox* map() { return control<PictureBox>(main(), QStringLiteral("Picture_Main")); }
};

} // namespace torvane::testing
