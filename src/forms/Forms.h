#pragma once

#include "forms/AboutForm.h"
#include "forms/AircraftEditForm.h"
#include "forms/AirportInfoForm.h"
#include "forms/AirportSearchForm.h"
#include "forms/DistanceForm.h"
#include "forms/FSAircraftEditForm.h"
#include "forms/FlightEditForm.h"
#include "forms/KeptFilesForm.h"
#include "forms/MainForm.h"
#include "forms/ProgressForm.h"
#include "forms/ResizeGatesForm.h"
#include "forms/SharesForm.h"
#include "forms/SplashForm.h"
#include "forms/TTStatisticsForm.h"
#include "forms/TextEditForm.h"

namespace orlo {

// The windows that live as long as the program.
struct Forms {
    MainForm frmMain;
    ProgressForm frmProgress;
    SplashForm frmSplash;
    AboutForm frmAbout;
    FlightEditForm frmFlightEdit;
    AircraftEditForm frmAircraftEdit;
    TTStatisticsForm frmTTStatistics;
    FSAircraftEditForm frmFSAircraftEdit;
    TextEditForm frmTextEdit;
    ResizeGatesForm frmResizeGates;
    DistanceForm frmDistance;
    AirportSearchForm frmAirportSearch;
    AirportInfoForm frmAirportInfo;
    KeptFilesForm frmKeptFiles;
    SharesForm frmShares;
};

}  // namespace orlo
