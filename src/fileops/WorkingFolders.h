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

// Removes from both working folders the staged files that a write cut short
// by a kill left behind (older than a minute, of no running process).
void removeStagedLeftovers(VeroProcedure_Basical& basics);

} // namespace lumen
