#pragma once

#include "platform/language.h"
#include "shell/help_book.h"
#include "shell/help_search.h"

#include <QUrl>
#include <QWidget>

#include <memory>

namespace Ui {
class HelpFrm;
}

namespace torvane {

/// The help window: contents, chapters, search in all of them, back and forward. Stands beside the editor's
/// windows as another program would: it is no Form, takes no part in who is in front among them, and stays
/// usable while one of them waits.
class HelpFrm : public QWidget
{
    Q_OBJECT

public:
    explicit HelpFrm(Language language);
    ~HelpFrm() override;

    /// Shows another book from its first page. The same book again changes nothing.
    void setBook(HelpBook book);
    /// Brings the window to the front at a chapter, or at the first page where there is none of that name.
    void showChapter(const QString& chapter);

private:
    enum class Direction { Next, Previous };

    void connectControls();
    void connectKeys();
    void fillContents();
    void showFirstPage();
    void markInContents(const QUrl& address);
    void find(Direction direction);
    void select(const HelpPlace& place, qsizetype length);
    HelpPlace placeToSearchFrom(Direction direction) const;
    const QStringList& plainTexts();
    void zoom(int steps);
    void startSearch();

    const Language m_language;
    std::unique_ptr<Ui::HelpFrm> m_ui;
    HelpBook m_book;
    QStringList m_plainTexts;
    int m_zoom = 0;
};

} // namespace torvane
