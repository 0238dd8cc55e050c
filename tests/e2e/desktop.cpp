#include "e2e/desktop.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QThread>

#include <stdexcept>

namespace torvane::testing {

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

Desktop::Desktop()
{
    // The server picks a free display number and tells it on its standard output.
    m_server.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                    QStringLiteral("0"), QStringLiteral("1280x900x24"), QStringLiteral("-nolisten"),
                    QStringLiteral("tcp")});
    if (!m_server.waitForStarted() || !m_server.waitForReadyRead(20000)) {
        throw std::runtime_error("Xvfb does not start");
    }
    m_display = QLatin1Char(':') + QString::fromLatin1(m_server.readAllStandardOutput()).trimmed();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), m_display);
    m_manager.setProcessEnvironment(environment);
    m_manager.setStandardErrorFile(QProcess::nullDevice());
    m_manager.start(QStringLiteral("openbox"), {});
    if (!m_manager.waitForStarted()) {
        throw std::runtime_error("openbox does not start");
    }
    const bool managed = eventually([this] {
        return run(QStringLiteral("xprop"),
                   {QStringLiteral("-root"), QStringLiteral("_NET_SUPPORTING_WM_CHECK")})
            .contains(QLatin1StringView("window id"));
    });
    if (!managed) {
        throw std::runtime_error("openbox does not manage the screen");
    }
}

Desktop::~Desktop()
{
    for (QProcess* process : {&m_manager, &m_server}) {
        process->terminate();
        if (!process->waitForFinished(5000)) {
            process->kill();
            process->waitForFinished();
        }
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
    for (const QString& key : keys) {
        run(QStringLiteral("xdotool"), {QStringLiteral("key"), key});
        QThread::msleep(60);
    }
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

bool Desktop::isActive(const QString& title) const
{
    return eventually([&] {
        return run(QStringLiteral("xdotool"),
                   {QStringLiteral("getactivewindow"), QStringLiteral("getwindowname")})
                   .trimmed() == title;
    });
}

void Desktop::screenshot(const QString& file) const
{
    run(QStringLiteral("import"), {QStringLiteral("-window"), QStringLiteral("root"), file});
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

std::unique_ptr<QProcess> GameFolder::start(const QString& program, const Desktop& desktop) const
{
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), desktop.display());
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
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
