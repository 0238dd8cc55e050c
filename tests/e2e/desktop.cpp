#include "e2e/desktop.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QThread>
#include <QtEndian>

#include <stdexcept>
#include <utility>

namespace torvane::testing {

namespace {

constexpr int keyDelay = 6; // milliseconds between two keys

} // namespace

bool eventually(const std::function<bool()>& condition, int milliseconds)
{
    const QDeadlineTimer deadline(milliseconds);
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QThread::msleep(20);
    }
    return true;
}

qsizetype pixelsOf(const QImage& picture, QRgb colour)
{
    qsizetype count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            count += picture.pixel(x, y) == colour ? 1 : 0;
        }
    }
    return count;
}

Desktop::Desktop()
{
    try {
        startServer();
        startManager();
    } catch (...) {
        end();
        throw;
    }
}

Desktop::~Desktop()
{
    end();
}

void Desktop::end()
{
    for (QProcess* process : {&m_manager, &m_server}) {
        process->terminate();
        if (process->state() != QProcess::NotRunning && !process->waitForFinished(5000)) {
            process->kill();
            process->waitForFinished();
        }
    }
}

void Desktop::startServer()
{
    // The server picks a free display number and tells it on its standard output.
    m_server.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                    QStringLiteral("0"), QStringLiteral("1280x900x24"), QStringLiteral("-nolisten"),
                    QStringLiteral("tcp"), QStringLiteral("-nocursor"), QStringLiteral("-fbdir"),
                    m_frames.path()});
    QByteArray number;
    while (!number.endsWith('\n')) {
        if (!m_server.waitForReadyRead(20000)) {
            throw std::runtime_error("Xvfb does not start: " + m_server.readAllStandardError().toStdString());
        }
        number += m_server.readAllStandardOutput();
    }
    m_display = QLatin1Char(':') + QString::fromLatin1(number).trimmed();
}

// A server that has just told its number may still refuse its first client on a busy machine.
void Desktop::startManager()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), m_display);
    m_manager.setProcessEnvironment(environment);
    m_manager.setProcessChannelMode(QProcess::MergedChannels);
    QByteArray said;
    const bool managed = eventually([&] {
        if (m_manager.state() == QProcess::NotRunning) {
            said = m_manager.isOpen() ? m_manager.readAll() : QByteArray();
            m_manager.start(QStringLiteral("openbox"), {});
            m_manager.waitForStarted();
        }
        m_manager.waitForFinished(1); // takes notice of its end
        return run(QStringLiteral("xprop"),
                   {QStringLiteral("-root"), QStringLiteral("_NET_SUPPORTING_WM_CHECK")})
            .contains(QLatin1StringView("window id"));
    });
    if (!managed) {
        throw std::runtime_error("openbox does not manage the screen " + m_display.toStdString() + ": " +
                                 (said + m_manager.readAll()).toStdString());
    }
}

QString Desktop::run(const QString& program, const QStringList& arguments) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), m_display);
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

static QString exactly(const QString& title)
{
    return QLatin1Char('^') + title + QLatin1Char('$');
}

static QString windowOf(const Desktop& desktop, const QString& title)
{
    return desktop
        .run(QStringLiteral("xdotool"), {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                         QStringLiteral("--name"), exactly(title)})
        .section(QLatin1Char('\n'), 0, 0);
}

bool Desktop::hasWindow(const QString& title, int milliseconds) const
{
    return eventually([&] { return !windowOf(*this, title).isEmpty(); }, milliseconds);
}

bool Desktop::hasNoWindow(const QString& title, int milliseconds) const
{
    return eventually([&] { return windowOf(*this, title).isEmpty(); }, milliseconds);
}

void Desktop::press(const QStringList& keys) const
{
    run(QStringLiteral("xdotool"),
        QStringList{QStringLiteral("key"), QStringLiteral("--delay"), QString::number(keyDelay)} + keys);
}

void Desktop::type(const QString& text) const
{
    run(QStringLiteral("xdotool"),
        {QStringLiteral("type"), QStringLiteral("--delay"), QString::number(keyDelay), text});
}

void Desktop::click(const QString& title, int x, int y) const
{
    run(QStringLiteral("xdotool"),
        {QStringLiteral("mousemove"), QStringLiteral("--window"), windowOf(*this, title), QString::number(x),
         QString::number(y), QStringLiteral("click"), QStringLiteral("1")});
}

void Desktop::close(const QString& title) const
{
    run(QStringLiteral("xdotool"),
        {QStringLiteral("windowactivate"), QStringLiteral("--sync"), windowOf(*this, title)});
    press({QStringLiteral("alt+F4")});
}

QString Desktop::activeTitle() const
{
    return run(QStringLiteral("xdotool"),
               {QStringLiteral("getactivewindow"), QStringLiteral("getwindowname")})
        .trimmed();
}

bool Desktop::isActive(const QString& title, int milliseconds) const
{
    return eventually([&] { return activeTitle() == title; }, milliseconds);
}

QRect Desktop::activeGeometry() const
{
    const QString window = run(QStringLiteral("xdotool"), {QStringLiteral("getactivewindow")}).trimmed();
    const QString told = run(QStringLiteral("xwininfo"), {QStringLiteral("-id"), window});
    const auto number = [&told](const QString& label) {
        const QRegularExpression line(label + QStringLiteral(":\\s+(-?\\d+)"));
        return line.match(told).captured(1).toInt();
    };
    return {number(QStringLiteral("Absolute upper-left X")), number(QStringLiteral("Absolute upper-left Y")),
            number(QStringLiteral("Width")), number(QStringLiteral("Height"))};
}

void Desktop::movePointer(QPoint place) const
{
    const QPoint onScreen = activeGeometry().topLeft() + place;
    run(QStringLiteral("xdotool"),
        {QStringLiteral("mousemove"), QString::number(onScreen.x()), QString::number(onScreen.y())});
}

void Desktop::clickActive(QPoint place, int button) const
{
    movePointer(place);
    run(QStringLiteral("xdotool"), {QStringLiteral("click"), QString::number(button)});
}

// The server keeps its frame buffer in a file: a header of big-endian numbers, the header's texts, a colour
// table, and then the pixels, four bytes each.
QImage Desktop::screen() const
{
    enum Field { HeaderSize = 0, Width = 4, Height = 5, BytesPerLine = 12, Colours = 19 };
    constexpr qsizetype colourSize = 12;
    QFile file(m_frames.filePath(QStringLiteral("Xvfb_screen0")));
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("Xvfb keeps no frame buffer");
    }
    const QByteArray bytes = file.readAll();
    const auto field = [&bytes](Field index) {
        return static_cast<int>(qFromBigEndian<quint32>(bytes.constData() + 4 * qsizetype{index}));
    };
    const qsizetype pixels = field(HeaderSize) + colourSize * field(Colours);
    const auto* data = reinterpret_cast<const uchar*>(bytes.constData()) + pixels;
    return QImage(data, field(Width), field(Height), field(BytesPerLine), QImage::Format_RGB32).copy();
}

QImage Desktop::activePicture() const
{
    const QRect place = activeGeometry();
    QImage picture = screen().copy(place);
    eventually(
        [&] {
            QThread::msleep(120);
            const QImage before = std::exchange(picture, screen().copy(place));
            return before == picture;
        },
        3000);
    return picture;
}

static void copyTree(const QString& from, const QString& to)
{
    QDir().mkpath(to);
    for (const QFileInfo& entry : QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
        const QString target = to + QLatin1Char('/') + entry.fileName();
        if (entry.isDir()) {
            copyTree(entry.filePath(), target);
        } else if (!QFile::copy(entry.filePath(), target)) {
            throw std::runtime_error("can't copy " + entry.filePath().toStdString());
        }
    }
}

GameFolder::GameFolder()
{
    copyTree(QStringLiteral(TORVANE_GAME_DIR), m_folder.path());
}

QStringList GameFolder::workNames() const
{
    return QDir(workFile(QString()))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

void GameFolder::putGame(const QString& name) const
{
    QFile game(path() + QLatin1Char('/') + name);
    if (!game.open(QIODevice::WriteOnly) || game.write("#!/bin/sh\npwd > started\n") < 0 ||
        !game.setPermissions(game.permissions() | QFile::ExeOwner)) {
        throw std::runtime_error("can't make " + name.toStdString());
    }
}

QString GameFolder::gameStart() const
{
    QFile started(path() + QStringLiteral("/started"));
    if (!eventually([&] { return started.exists() && started.size() > 1; }) ||
        !started.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QString::fromUtf8(started.readAll()).trimmed();
}

std::unique_ptr<QProcess> GameFolder::start(const QString& program, const Desktop& desktop) const
{
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), desktop.display());
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    if (!environment.contains(QStringLiteral("XDG_RUNTIME_DIR"))) {
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), path()); // else the platform would complain
    }
#ifdef TORVANE_LEAKS
    // A program under the leak sanitizer answers for its own leaks alone.
    environment.insert(QStringLiteral("LSAN_OPTIONS"),
                       QStringLiteral("suppressions=" TORVANE_LEAKS ":print_suppressions=0"));
#endif
    process->setProcessEnvironment(environment);
    process->setWorkingDirectory(QDir::rootPath()); // the program finds its folder by itself
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->start(path() + QLatin1Char('/') + program, {});
    if (!process->waitForStarted()) {
        throw std::runtime_error("can't start " + program.toStdString());
    }
    return process;
}

} // namespace torvane::testing
