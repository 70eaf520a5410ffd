#pragma once

#include "core/autolayout/kwgeneticsolver.h"

#include <functional>

/// When a layout run ends; the defaults are those of the user's settings.
struct KWLayoutOptions
{
    int stopCriteria = KWGeneticSolver::StopOnUnimproved;
    int maxSeconds = 60;
    int maxGenerationsUnimproved = 20;
};

/// How far a layout run is.
struct KWLayoutProgress
{
    bool inStartStage;
    /// Start solutions made, or generations made after the start stage.
    qint64 done;
    /// Start solutions wanted; meaningless after the start stage.
    int total;
    /// The score of what would be adopted now: of the first candidate if it seats more guests or
    /// scores higher, else of the plan. Start solutions stand in the order in which they were made,
    /// so a better one may be among them.
    int score;
};

/// What a layout run asks of the program around it. All hooks may be left out.
struct KWLayoutHooks
{
    /// Lets the program answer its user; whatever sets the plan's abort flag is called from here.
    std::function<void()> processEvents = [] {};
    std::function<void(const KWLayoutProgress &progress)> progress = [](const auto &) {};
};

/// What a layout run did.
struct KWLayoutResult
{
    enum StoppedBy { Time, Unimproved, User, Memory };

    int startSolutions = 0;
    qint64 generations = 0;
    double startStageMs = 0;
    double generationsMs = 0;
    StoppedBy stoppedBy = User;
};

/// Lays out a plan and gives the plan the best seating found, which is the plan's own unless
/// another seats more guests or scores higher.
///
/// A set abort flag ends the run at its next check; the generation stage clears the flag. Memory
/// that runs out ends the run with the best so far; any other exception leaves the plan as it was
/// and passes on.
KWLayoutResult runLayout(KWDocument &document, const KWLayoutOptions &options,
                         const KWLayoutHooks &hooks = {});
