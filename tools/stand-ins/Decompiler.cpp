// Stands in for the traffic decompiler: writes a small flight plan.

#include <fstream>

#include "StandIn.h"

int main(int argumentCount, char** arguments) {
    using namespace orlo::standin;
    if (!TakesSwitch(argumentCount, arguments, false)) return kWrongSwitch;
    std::ofstream output("FlightPlans.txt", std::ios::binary);
    output
        << "AC#1,N1001,20%,24Hr,IFR,08:00:00,10:00:00,240,F,1001,KSEA,14:00:00,16:00:00,230,F,1002,KLAX\r\n"
        << "AC#2,N1002,40%,12Hr,VFR,07:30:00,08:15:00,95,R,1003,KSEA,09:00:00,09:45:00,85,R,1004,KPDX\r\n"
        << std::flush;
    return output ? WantedExitCode() : kCannotWrite;
}
