#include "overview/dialog_texts.h"

#include "platform/list_combo.h"
#include "shell/editor.h"

namespace torvane {

void fillLists(QWidget& window, Language language)
{
    for (ListCombo* list : window.findChildren<ListCombo*>()) {
        list->addItems(listContents(list->objectName(), language));
    }
}

void showOutOfRange(Editor& editor, OverviewMessage message)
{
    editor.services().messageBoxes.show(
        {.text = overviewMessage(message, editor.language()),
         .title = overviewMessage(OverviewMessage::OutOfRangeTitle, editor.language()),
         .icon = MessageBox::Icon::Information});
}

} // namespace torvane
