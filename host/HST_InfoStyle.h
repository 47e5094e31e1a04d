#pragma once

#include <QColor>
#include <QFont>
#include <QSize>
#include <QString>

class HST_Preferences;

// How the information block is drawn, read from the preferences of the screen (info/...) or of
// a set of the save form (saveinfo/...N). A value that is out of range or no value at all is
// held to the nearest one that can be drawn, or its default.
struct HST_InfoStyle
{
    QString displayText;
    QFont font;
    // The font size as the preferences hold it: pixels on the screen, pixels of the image on a
    // saved picture.
    int fontSize = 12;
    QColor foreground = Qt::white;
    // 0 left, 1 centre, 2 right.
    int alignment = 0;
    // Longest line in pixels; 0: no limit.
    int width = 0;
    bool blankLine = false;
    QString logoPath;
    int iconSize = 48;
    // Saved pictures only.
    bool useBackground = false;
    QColor background = Qt::black;
    int columns = 1;
    int columnSpacing = 16;
    bool withinImage = true;
    bool fixedFontSizeRatio = false;
    QSize baseResolution;

    static HST_InfoStyle screen(const HST_Preferences& prefs);
    static HST_InfoStyle save(const HST_Preferences& prefs, int set);
};
