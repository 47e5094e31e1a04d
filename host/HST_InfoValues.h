#pragma once

#include <QList>
#include <QString>

#include <functional>

class HST_Document;
class HST_Preferences;
struct APP_TimeCodeRecord;

// One line of the information block as it is drawn.
struct HST_InfoLine
{
    enum Kind {
        Text,
        // A hidden item's place, when blank lines stand for hidden items.
        Blank,
        // A separator of the display list.
        Gap,
        Logo,
    };
    Kind kind = Text;
    QString text;
};

// What the information block says about one document: the items of a display list that are on
// and exist in the host's mode, each with the value the simulation has for it, as the display
// format preferences write it.
class HST_InfoValues
{
public:
    struct Source
    {
        const HST_Document* document = nullptr;
        const HST_Preferences* prefs = nullptr;
        const APP_TimeCodeRecord* timeCode = nullptr;
        // The host's translation of a label.
        std::function<QString(const QString&)> translate;
    };

    // A saved picture, in place of the host's mode.
    static constexpr int savedPicture = 3;
    // The simulated exposure and rate every document reports.
    static constexpr int frameRate = 1000;
    static constexpr int exposureMicroseconds = 500;

    HST_InfoValues() = delete;

    // mode: 0 live, 1 memory, 2 file, or savedPicture. Entries of the display list that are
    // no item of the table, repeated keys and entries without a state are passed over.
    static QList<HST_InfoLine> lines(
        const Source& source, int mode, const QString& displayText, bool blankLine);
    // The text of one item, "Label: value"; custom items and comments may give several lines.
    static QStringList itemTexts(const Source& source, const QString& key);

    static QString grouped(qint64 number, bool delimiter);
    static QString shutterSpeed(int format, int unit, bool delimiter);
    static QString recordingTime(qint64 frames, int unit);
    // The time code of a frame: the real time form in the scope's units, or the counted form.
    static QString timeCode(const APP_TimeCodeRecord& record, qint64 frame);
    // The frame the simulation shows: the middle of the first partition.
    static qint64 currentFrame(const HST_Document& document);
};
