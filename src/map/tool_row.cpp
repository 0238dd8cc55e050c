#include "map/tool_row.h"

#include "platform/picture_button.h"

#include <QLabel>
#include <QMouseEvent>

#include <algorithm>

namespace torvane {

namespace {

const QColor tagColor(255, 255, 128);
constexpr int tagMargin = 2;

// A tag is low: its text gives way until it stands in it.
QFont tagFont(QFont font)
{
    while (QFontMetrics(font).height() > tagHeight && font.pointSizeF() > 6) {
        font.setPointSizeF(font.pointSizeF() - 0.5);
    }
    return font;
}

} // namespace

ToolRow::ToolRow(QWidget* surface) : QObject(surface)
{
    for (std::size_t mode = 0; mode < m_nameIcons.size(); ++mode) {
        m_nameIcons.at(mode) = QIcon(toolPicture(Tool::Names, static_cast<int>(mode)));
    }
    for (std::size_t index = 0; index < count; ++index) {
        makeTool(index, surface);
    }
    for (std::size_t index = 0; index < count; ++index) {
        makeTag(index, surface);
    }
    watch(surface, Place::Surface);
    showState({}, false);
}

void ToolRow::makeTool(std::size_t index, QWidget* surface)
{
    const ViewTool& tool = viewTools.at(index);
    auto* button = new PictureButton(surface);
    button->setObjectName(QLatin1StringView(tool.name));
    button->setGeometry(tool.left, toolTop, toolSize, toolSize);
    button->setIconSize({toolSize, toolSize});
    button->setIcon(QIcon(toolPicture(tool.tool)));
    connect(button, &PictureButton::clicked, this, [this, which = tool.tool] { Q_EMIT clicked(which); });
    listenTo(button);
    m_tools.at(index) = button;
}

void ToolRow::makeTag(std::size_t index, QWidget* surface)
{
    const ViewTool& tool = viewTools.at(index);
    auto* tag = new QLabel(surface);
    tag->setObjectName(QLatin1StringView(tool.tag));
    QPalette colors = tag->palette();
    colors.setColor(QPalette::Window, tagColor);
    colors.setColor(QPalette::WindowText, Qt::black);
    tag->setPalette(colors);
    tag->setAutoFillBackground(true);
    tag->setFont(tagFont(tag->font()));
    tag->setContentsMargins(tagMargin, 0, 0, 0);
    tag->setGeometry(tool.tagLeft, tagTop, 0, tagHeight);
    tag->hide();
    listenTo(tag);
    m_tags.at(index) = tag;
}

void ToolRow::listenTo(QWidget* control)
{
    control->setMouseTracking(true);
    control->installEventFilter(this);
}

void ToolRow::watch(QWidget* control, Place place)
{
    m_places[control] = place;
    listenTo(control);
    if (place == Place::ScalePanel) {
        // What stands on the panel lets the pointer's moves through to it.
        for (QWidget* readOut : control->findChildren<QWidget*>()) {
            readOut->setMouseTracking(true);
        }
    }
}

void ToolRow::leadTabThrough(std::initializer_list<QWidget*> between)
{
    QWidget* before = m_tools.front();
    const auto follow = [&before](QWidget* next) {
        QWidget::setTabOrder(before, next);
        before = next;
    };
    for (std::size_t index = 1; index < corner; ++index) {
        follow(m_tools.at(index));
    }
    for (QWidget* control : between) {
        follow(control);
    }
    follow(m_tools.at(corner));
}

void ToolRow::placeCorner(QPoint tool, int size, QPoint tag)
{
    m_tools.at(corner)->setGeometry({tool, QSize(size, size)});
    m_cornerTag = tag;
    placeCornerTag();
}

void ToolRow::placeCornerTag()
{
    QLabel* tag = m_tags.at(corner);
    const int left = std::min(m_cornerTag.x(), m_tools.at(corner)->x() - tag->width());
    tag->move(left, m_cornerTag.y());
}

void ToolRow::setCaptions(Language language)
{
    for (std::size_t index = 0; index < count; ++index) {
        const TagText& text = viewTools.at(index).tagText(language);
        QLabel* tag = m_tags.at(index);
        tag->setText(text.string());
        const int needed = tag->fontMetrics().horizontalAdvance(tag->text()) + 2 * tagMargin;
        tag->resize(std::max(text.width(), needed), tagHeight);
        m_tools.at(index)->setAccessibleName(text.string().trimmed());
    }
    placeCornerTag();
}

void ToolRow::showState(const MapToggles& toggles, bool measureOn)
{
    for (std::size_t index = 0; index < count; ++index) {
        const Tool tool = viewTools.at(index).tool;
        m_tools.at(index)->setChecked(tool == Tool::Measure ? measureOn : isOn(toggles, tool));
    }
    constexpr auto names = static_cast<std::size_t>(Tool::Names);
    m_tools.at(names)->setIcon(m_nameIcons.at(static_cast<std::size_t>(toggles.namesMode)));
}

void ToolRow::hideTags()
{
    for (QLabel* tag : m_tags) {
        tag->hide();
    }
}

bool ToolRow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::MouseMove) {
        return QObject::eventFilter(watched, event);
    }
    const auto* move = static_cast<QMouseEvent*>(event);
    // A move that nobody takes would go on to the surface below, which hides what has just been shown.
    return pointerOverPlace(watched, move->position().toPoint()) ||
           ((pointerOverTool(watched) || pointerOverTag(watched)) && move->buttons() == Qt::NoButton);
}

// The tool at the corner leaves the tags of the row alone, and they leave its own.
bool ToolRow::pointerOverTool(const QObject* watched)
{
    const auto* const found = std::ranges::find(m_tools, watched);
    if (found == m_tools.end()) {
        return false;
    }
    const auto index = static_cast<std::size_t>(found - m_tools.begin());
    if (m_tagsOn) {
        m_tags.at(index)->raise();
        m_tags.at(index)->show();
    }
    for (std::size_t other = 0; index != corner && other < corner; ++other) {
        if (other != index) {
            m_tags.at(other)->hide();
        }
    }
    return true;
}

// A tag of the row stays under the pointer; that of the corner gives way.
bool ToolRow::pointerOverTag(const QObject* watched)
{
    if (watched == m_tags.at(corner)) {
        m_tags.at(corner)->hide();
    }
    return std::ranges::find(m_tags, watched) != m_tags.end();
}

bool ToolRow::pointerOverPlace(const QObject* watched, QPoint position)
{
    const auto found = m_places.find(watched);
    if (found == m_places.end()) {
        return false;
    }
    switch (found->second) {
    case Place::Surface:
        // Not for moves over a control that took no notice of them.
        if (!static_cast<const QWidget*>(watched)->childAt(position)) {
            hideTags();
        }
        return false;
    case Place::Map:
        hideTags();
        return false;
    case Place::Ruler:
        m_tags.at(static_cast<std::size_t>(Tool::Measure))->hide();
        return true;
    case Place::ScalePanel:
        m_tags.at(corner)->hide();
        return true;
    }
    return false;
}

} // namespace torvane
