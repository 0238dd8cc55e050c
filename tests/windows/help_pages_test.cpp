#include "windows/help_fixture.h"

#include <QApplication>
#include <QPalette>
#include <QTextBlock>

#include <cstdlib>
#include <map>

namespace torvane::testing {
namespace {

/// The addresses of all links in what is shown.
QStringList shownLinks(const QTextDocument& document)
{
    QStringList links;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            const QString link = piece.fragment().charFormat().anchorHref();
            if (!link.isEmpty()) {
                links.append(link);
            }
        }
    }
    return links;
}

/// The names in what is shown to which links can lead.
QStringList shownAnchors(const QTextDocument& document)
{
    QStringList anchors;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            anchors += piece.fragment().charFormat().anchorNames();
        }
    }
    return anchors;
}

TEST_P(Help, EveryLinkLeadsToItsPlace)
{
    open();
    std::map<QString, QStringList> anchors;
    QStringList links;
    for (const HelpChapter& chapter : book().chapters()) {
        guide().setSource(HelpBrowser::addressOf(chapter.name));
        anchors[chapter.name] = shownAnchors(*guide().document());
        links += shownLinks(*guide().document());
    }
    EXPECT_GT(links.size(), 100);
    for (const QString& link : links) {
        const QUrl address(link);
        EXPECT_EQ(address.scheme(), QStringLiteral("help")) << link.toStdString();
        EXPECT_TRUE(anchors[address.path()].contains(address.fragment())) << link.toStdString();
    }
}

TEST_P(Help, LinksCanBeReadOnDarkAndLightDesktops)
{
    const QPalette before = QApplication::palette();
    for (const QColor& ground : {QColor(40, 42, 50), QColor(240, 240, 240)}) {
        QApplication::setPalette(QPalette(ground));
        open();
        const int paper = qGray(guide().palette().color(QPalette::Base).rgb());
        int links = 0;
        for (QTextBlock block = guide().document()->begin(); block.isValid(); block = block.next()) {
            for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
                const QTextCharFormat format = piece.fragment().charFormat();
                if (format.isAnchor() && !format.anchorHref().isEmpty()) {
                    EXPECT_GT(std::abs(qGray(format.foreground().color().rgb()) - paper), 100);
                    ++links;
                }
            }
        }
        EXPECT_GT(links, 5);
    }
    QApplication::setPalette(before);
}

TEST_P(Help, EveryPictureIsShown)
{
    open();
    int pictures = 0;
    for (const HelpChapter& chapter : book().chapters()) {
        guide().setSource(HelpBrowser::addressOf(chapter.name));
        const QTextDocument& document = *guide().document();
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
                const QTextImageFormat format = piece.fragment().charFormat().toImageFormat();
                if (!format.isValid() || format.name().isEmpty()) {
                    continue;
                }
                ++pictures;
                const auto image =
                    document.resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>();
                ASSERT_FALSE(image.isNull()) << chapter.name.toStdString();
                EXPECT_EQ(image.deviceIndependentSize(), QSizeF(format.width(), format.height()))
                    << chapter.name.toStdString() << " " << format.name().toStdString();
            }
        }
    }
    EXPECT_GE(pictures, 12);
}

TEST_P(Help, ALinkOutOfTheGuideLeadsNowhere)
{
    open();
    for (const char* link : {"http://example.org/", "file:///etc/passwd", "help:nowhere", "picture:0"}) {
        guide().setSource(QUrl(QString::fromLatin1(link)));
        EXPECT_EQ(guide().chapter(), QStringLiteral("welcome")) << link;
    }
}

} // namespace
} // namespace torvane::testing
