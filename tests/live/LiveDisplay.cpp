#include "tests/live/LiveDisplay.h"

#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QThread>
#include <QtEndian>
#include <stdexcept>

namespace live {

namespace {

constexpr int width = 1440;
constexpr int fullHeight = 900;
constexpr int patience = 60'000;  // milliseconds
constexpr int pause = 20;

void require(bool condition, const char* what) {
    if (!condition) throw std::runtime_error(what);
}

}  // namespace

LiveDisplay::LiveDisplay() : height(fullHeight) {
    startDisplay();
    startDesk();
}

LiveDisplay::~LiveDisplay() {
    for (QProcess* process : {&desk, &server}) {
        if (process->state() == QProcess::NotRunning) continue;
        process->terminate();
        if (!process->waitForFinished(patience)) process->kill();
        process->waitForFinished(patience);
    }
}

void LiveDisplay::startDisplay() {
    const QString geometry = QStringLiteral("%1x%2x24").arg(width * scale).arg(fullHeight * scale);
    server.setStandardErrorFile(QProcess::nullDevice());
    server.start(QStringLiteral("Xvfb"),
                 {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                  geometry, QStringLiteral("-fbdir"), folder.path(), QStringLiteral("-nocursor"),
                  QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    require(server.waitForStarted(patience), "Xvfb can't be started");
    QByteArray number;
    while (!number.endsWith('\n') && server.waitForReadyRead(patience)) number += server.readAll();
    require(number.endsWith('\n'), "Xvfb tells no display");
    name = QLatin1Char(':') + QString::fromLatin1(number.trimmed());
}

void LiveDisplay::startDesk() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), name);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::number(scale));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    // A strict check of strings finds fault with a library that copies parts of them from the display's messages.
    environment.insert(QStringLiteral("ASAN_OPTIONS"),
                       QStringLiteral("detect_leaks=1:detect_stack_use_after_return=1"));
    desk.setProcessEnvironment(environment);
    desk.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    desk.start(QStringLiteral(BRINDLE_DESK), {QStringLiteral("--live")});
    require(desk.waitForStarted(patience), "the desk can't be started");
}

void LiveDisplay::tell(const std::string& line) {
    desk.write((line + '\n').c_str());
    desk.waitForBytesWritten(patience);
}

std::string LiveDisplay::ask(const std::string& line) {
    tell(line);
    while (!desk.canReadLine()) require(desk.waitForReadyRead(patience), "the desk doesn't answer");
    return desk.readLine().trimmed().toStdString();
}

QJsonObject LiveDisplay::state() {
    return QJsonDocument::fromJson(QByteArray::fromStdString(ask("state"))).object();
}

platform::CGPoint LiveDisplay::where(const std::string& target) {
    const QStringList numbers = QString::fromStdString(ask("where " + target)).split(QLatin1Char(' '));
    require(numbers.size() == 2, "no point");
    return {numbers[0].toDouble(), numbers[1].toDouble()};
}

QImage LiveDisplay::composed() {
    const std::string file = (folder.path() + QStringLiteral("/composed.png")).toStdString();
    tell("screenshot " + file);
    require(ask("print done") == "done", "no picture");
    return QImage(QString::fromStdString(file)).convertToFormat(QImage::Format_RGB32);
}

// The server keeps its frame buffer as a window dump: a header of 32-bit numbers, the colours, the lines.
QImage LiveDisplay::onDisplay() const {
    QFile file(folder.path() + QStringLiteral("/Xvfb_screen0"));
    require(file.open(QIODevice::ReadOnly), "no frame buffer");
    const QByteArray dump = file.readAll();
    const auto number = [&](qsizetype place) { return qFromBigEndian<quint32>(dump.constData() + 4 * place); };
    constexpr qsizetype colorSize = 12;
    const qsizetype begin = number(0) + colorSize * number(19);
    const auto* lines = reinterpret_cast<const uchar*>(dump.constData() + begin);
    const QImage view(lines, static_cast<int>(number(4)), static_cast<int>(number(5)), static_cast<int>(number(12)),
                      QImage::Format_RGB32);
    return view.copy();
}

void LiveDisplay::xdotool(const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), name);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral("xdotool"), arguments);
    require(process.waitForFinished(patience) && process.exitCode() == 0, "xdotool fails");
}

void LiveDisplay::moveMouse(const platform::CGPoint& point) {
    xdotool({QStringLiteral("mousemove"), QString::number(qRound(point.x * scale)),
             QString::number(qRound((height - point.y) * scale))});
}

void LiveDisplay::click(const std::string& target) {
    moveMouse(where(target));
    xdotool({QStringLiteral("click"), QStringLiteral("1")});
}

bool LiveDisplay::comesTrue(const std::function<bool(const QJsonObject&)>& condition) {
    QElapsedTimer timer;
    timer.start();
    while (!condition(state())) {
        if (timer.elapsed() > patience) return false;
        QThread::msleep(pause);
    }
    return true;
}

bool LiveDisplay::showsWhatIsComposed() {
    return comesTrue([this](const QJsonObject&) { return composed() == onDisplay(); });
}

int LiveDisplay::end() {
    desk.closeWriteChannel();
    return waitForEnd();
}

int LiveDisplay::interrupt() {
    desk.terminate();
    return waitForEnd();
}

int LiveDisplay::waitForEnd() {
    require(desk.waitForFinished(patience), "the desk doesn't end");
    return desk.exitStatus() == QProcess::NormalExit ? desk.exitCode() : -1;
}

}  // namespace live
