#pragma once

// One sync request, handed on by value.
struct SyncSettings
{
    // 0 none, 1 N-Rack, 2 Link Core.
    int distributor = 0;
    // true: an external sync signal; false: chain connection from a master.
    bool external = false;
    // The signal generator drives the external signal.
    bool generatorControl = false;
    // 0 "ON CAM POS", 1 "ON OTHERS POS".
    int syncIn = 0;
    // -1 not given; else hertz, 1000 to 10000.
    int frequency = -1;
    // 0 "TRIG POS", 1 "TRIG NEG".
    int polarity = 0;

    bool operator==(const SyncSettings& other) const
    {
        return distributor == other.distributor && external == other.external
               && generatorControl == other.generatorControl && syncIn == other.syncIn
               && frequency == other.frequency && polarity == other.polarity;
    }
    bool operator!=(const SyncSettings& other) const { return !(*this == other); }
};
