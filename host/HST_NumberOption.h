#pragma once

#include <QString>

class HST_Preferences;

// The numbered option part of a file name, as the host answers numberOptionText: from the
// operation's "filenameaddnumber" and "filenameadddetails" preferences (host/README.md).
namespace HST_NumberOption {

struct Document
{
    int deviceNumber = 0;
    int headNumber = 0;
    int recordingRate = 0;
};

// usesSession, when given, tells whether the text holds the session number.
QString text(HST_Preferences* prefs, int mode, int partition, int session, const Document& document,
    bool* usesSession);

} // namespace HST_NumberOption
