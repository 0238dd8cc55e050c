#pragma once

#include "shell/help_book.h"

#include <QTextBrowser>

namespace torvane {

/// Shows the chapters of a help book and nothing else: "help:chapter#anchor" is an address, pictures come
/// from the book.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    /// Forgets the history. `book` outlives its use here.
    void setBook(const HelpBook& book);

    /// The address of a chapter or section.
    static QUrl addressOf(const QString& chapter, const QString& anchor = QString());
    /// Shows an address from its beginning, also where it is the one that is shown.
    void goTo(const QUrl& address);
    /// The chapter that is shown.
    QString chapter() const { return source().path(); }

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
    void changeEvent(QEvent* event) override;

private:
    void applyStyle();
    QImage picture(int number) const;

    const HelpBook* m_book = nullptr;
};

} // namespace torvane
