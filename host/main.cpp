#include "host/HST_Application.h"

#include <QApplication>
#include <QFont>

#include <cstdio>
#include <cstring>
#include <vector>

int main(int argc, char* argv[])
{
    // QGuiApplication takes "-plugin" for itself, so it never sees ours.
    QStringList arguments;
    std::vector<char*> qtArguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
        const bool plugin = std::strcmp(argv[i], "--plugin") == 0;
        if (plugin && i + 1 < argc) {
            arguments.append(QString::fromLocal8Bit(argv[++i]));
            continue;
        }
        if (!plugin && std::strncmp(argv[i], "--plugin=", 9) != 0)
            qtArguments.push_back(argv[i]);
    }
    int qtArgc = int(qtArguments.size());
    qtArguments.push_back(nullptr);
    QApplication application(qtArgc, qtArguments.data());
    QApplication::setApplicationName(QStringLiteral("tarvix4host"));
    // The plug-in's dialogs have fixed geometry made for the compact UI font of the viewer's
    // platform; an Arial-metric 8 pt font keeps their texts inside their boxes here too.
    QApplication::setFont(QFont(QStringLiteral("Liberation Sans"), 8));

    HST_Options options;
    QString error;
    const bool parsed = HST_Application::parseArguments(arguments, options, error);
    if (!parsed || options.help) {
        std::fprintf(parsed ? stdout : stderr, "%s\n", qPrintable(error));
        return parsed ? HST_Application::Success : HST_Application::BadInput;
    }
    HST_Application host(options);
    return host.run();
}
