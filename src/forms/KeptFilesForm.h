#pragma once

#include <cstddef>
#include <vector>

#include "core/KeptEntry.h"
#include "forms/Form.h"
#include "forms/ListView.h"

namespace orlo {

// The copies of files that the program has kept, and how they come back.
struct KeptFilesForm : Form {
    KeptFilesForm();

    ListView lvKept{*this, "lvKept"};  // one row a file, the newest first until it is sorted
    Button cmdRestore{*this, "cmdRestore", "&Restore..."};
    Button cmdShowFolder{*this, "cmdShowFolder", "Show &Folder"};
    Button cmdDelete{*this, "cmdDelete", "&Delete"};
    Button cmdClose{*this, "cmdClose", "&Close"};

    struct Row {
        std::size_t entry = 0;  // in Entries
        std::size_t file = 0;   // in its Files
    };
    std::vector<KeptEntry> Entries;  // as they were read last
    std::vector<Row> Rows;           // by the places of lvKept
};

}  // namespace orlo
