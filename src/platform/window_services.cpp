#include "platform/window_services.h"

#include "platform/pointer.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

#include <memory>

namespace torvane {

namespace {

/// The words on the buttons of the platform's boxes.
struct ButtonWords
{
    MessageBox::Answer answer;
    const char* english;
    const char* german;
};

constexpr ButtonWords buttonWords[] = {
    {MessageBox::Answer::Ok, "&OK", "&OK"},
    {MessageBox::Answer::Yes, "&Yes", "&Ja"},
    {MessageBox::Answer::No, "&No", "&Nein"},
};

QString wordFor(MessageBox::Answer answer, Language language)
{
    for (const ButtonWords& words : buttonWords) {
        if (words.answer == answer) {
            return QString::fromUtf8(language == Language::German ? words.german : words.english);
        }
    }
    return {};
}

QMessageBox::Icon iconOf(MessageBox::Icon icon)
{
    switch (icon) {
    case MessageBox::Icon::Information:
        return QMessageBox::Information;
    case MessageBox::Icon::Question:
        return QMessageBox::Question;
    case MessageBox::Icon::Exclamation:
        return QMessageBox::Warning;
    case MessageBox::Icon::Critical:
        return QMessageBox::Critical;
    case MessageBox::Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

// The window in front, so that the box stands over it; boxes are asked for by handlers of that window.
QWidget* frontWindow()
{
    return QApplication::activeWindow();
}

/// The box for one request. Of a filter like "Scenario Files(*.scn)|*.scn" the window system's box takes the
/// description, which holds the pattern.
std::unique_ptr<QFileDialog> fileBox(const FileRequest& request)
{
    return std::make_unique<QFileDialog>(frontWindow(), request.title, request.folder,
                                         request.filter.section(QLatin1Char('|'), 0, 0));
}

std::optional<QString> chosen(QFileDialog& window)
{
    if (window.exec() != QDialog::Accepted || window.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return window.selectedFiles().constFirst();
}

} // namespace

MessageBox::Answer WindowMessageBoxes::show(const MessageBox& box)
{
    using Answer = MessageBox::Answer;
    QMessageBox window(iconOf(box.icon), box.title, box.text, QMessageBox::NoButton, frontWindow());
    window.setObjectName(QStringLiteral("messageBox"));
    window.setTextFormat(Qt::PlainText);
    const auto add = [&](Answer answer, QMessageBox::ButtonRole role) {
        QPushButton* button = window.addButton(wordFor(answer, m_language), role);
        if (answer == box.defaultAnswer) {
            window.setDefaultButton(button);
        }
        return button;
    };
    const QPushButton* yes = nullptr;
    if (box.buttons == MessageBox::Buttons::YesNo) {
        yes = add(Answer::Yes, QMessageBox::YesRole);
        window.setEscapeButton(add(Answer::No, QMessageBox::NoRole));
    } else {
        window.setEscapeButton(add(Answer::Ok, QMessageBox::AcceptRole));
    }
    window.exec();
    if (box.buttons == MessageBox::Buttons::Ok) {
        return Answer::Ok;
    }
    return window.clickedButton() == yes ? Answer::Yes : Answer::No;
}

std::optional<QString> WindowInputBoxes::ask(const QString& title, const QString& prompt,
                                             const QString& defaultText)
{
    QInputDialog window(frontWindow());
    window.setWindowTitle(title);
    window.setLabelText(prompt);
    window.setTextValue(defaultText);
    window.setOkButtonText(QStringLiteral("OK"));
    window.setCancelButtonText(m_language == Language::German ? QStringLiteral("Abbrechen")
                                                              : QStringLiteral("Cancel"));
    if (window.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return window.textValue();
}

std::optional<QString> WindowFileBoxes::open(const FileRequest& request)
{
    const auto window = fileBox(request);
    window->setFileMode(QFileDialog::ExistingFile);
    return chosen(*window);
}

std::optional<QString> WindowFileBoxes::save(const FileRequest& request)
{
    const auto window = fileBox(request);
    window->setAcceptMode(QFileDialog::AcceptSave);
    window->setOption(QFileDialog::DontConfirmOverwrite);
    window->setDefaultSuffix(request.defaultSuffix);
    window->selectFile(request.fileName);
    return chosen(*window);
}

} // namespace torvane
