#pragma once

class Database;

// While it lives, a commit does not wait for the disk; at its end everything is there. The file
// stays whole in any case, and what was committed survives the end of the program. Only a power cut
// could lose the last rows, as it could have come just before them.
class LighterCommits
{
public:
    explicit LighterCommits(Database *database); // not owned
    ~LighterCommits();
    LighterCommits(const LighterCommits &) = delete;
    LighterCommits &operator=(const LighterCommits &) = delete;

private:
    void setLevel(int level);

    Database *m_database;
    int m_before;
};
