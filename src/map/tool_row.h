#pragma once

#include "map/view_tools.h"

#include <QIcon>
#include <QObject>
#include <QPoint>

#include <array>
#include <initializer_list>
#include <map>

class QLabel;
class QWidget;

namespace torvane {

class PictureButton;

/// The tools above the map and at its corner, and their help tags: which tag shows while the pointer is
/// where.
class ToolRow : public QObject
{
    Q_OBJECT

public:
    /// What the pointer may be over besides tools and tags.
    enum class Place {
        Surface,    ///< the main window's own: hides all tags
        Map,        ///< likewise
        Ruler,      ///< beside the row: hides the tag of the measuring tool
        ScalePanel, ///< above the map: hides the tag of the corner's tool
    };

    /// Makes tools and tags, which belong to `surface`.
    explicit ToolRow(QWidget* surface);

    /// Listens to the pointer over a control, and over what it holds by now.
    void watch(QWidget* control, Place place);
    /// Leads the keyboard through the row, then the controls between, then to the corner.
    void leadTabThrough(std::initializer_list<QWidget*> between);
    /// Places the corner's tool and its tag, which gives way to the left where its text needs more room.
    void placeCorner(QPoint tool, int size, QPoint tag);

    void setCaptions(Language language);
    /// Shows which tools are on, and the mode of the names.
    void showState(const MapToggles& toggles, bool measureOn);
    /// Whether tools show their tags. A tag that shows already stays.
    void setTagsOn(bool on) { m_tagsOn = on; }
    void hideTags();

Q_SIGNALS:
    void clicked(torvane::Tool tool);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static constexpr std::size_t count = viewTools.size();
    static constexpr std::size_t corner = count - 1;

    void makeTool(std::size_t index, QWidget* surface);
    void makeTag(std::size_t index, QWidget* surface);
    void listenTo(QWidget* control);
    bool pointerOverTool(const QObject* watched);
    bool pointerOverTag(const QObject* watched);
    bool pointerOverPlace(const QObject* watched, QPoint position);
    void placeCornerTag();

    std::array<PictureButton*, count> m_tools{};
    std::array<QLabel*, count> m_tags{};
    std::array<QIcon, 4> m_nameIcons; ///< of the modes of names
    std::map<const QObject*, Place> m_places;
    QPoint m_cornerTag;
    bool m_tagsOn = true;
};

} // namespace torvane
