// The two working folders: DataDir ("C:\Lumentas", the user's copies and
// lists) and ProgramRunDir (everything the program keeps for itself).
#pragma once

namespace lumen {

class VeroProcedure_Basical;
struct ProgramState;

void setWorkingFolderNames(ProgramState& state);

// Makes each folder when a search for its files finds none; a folder that
// exists but is empty is simply tried again, and the failure passed over.
void makeWorkingFolders(VeroProcedure_Basical& basics);

} // namespace lumen
