import QtQuick 2.15

// What the application has told the interface so far.
QtObject {
    id: status

    readonly property var states: ({
        firstOpened: 0, introduction: 1, lighting: 2, reset: 3, waiting: 5, starting: 6, capturing: 7, found: 8,
        tutorial: 9, refining: 10
    })
    property int state: states.firstOpened
    property string notice: ""  // the object name of the notice that hides every page
    property bool failed: false  // the application has told an error: only leaving is left
    property bool firstCameraAccepted: false
    property bool saving: false
    readonly property bool paged: notice === "" && !failed && !saving
    property bool singleCamera: false
    property bool secondCamera: false
    property string cameraName: ""

    property string lastSaveFailedText: ""
    property string startText: ""
    property bool howToMoveOffered: false
    property string refinementText: ""
    property string savedText: ""

    property string lightingTitle: ""
    property string lightingMessage: ""
    property real lightingProgress: 0
    property bool lit: false
    property string lightingContinueLabel: ""
    property bool lightNeeded: false

    property string movementText: ""
    property bool holdStill: false  // what the text asks for
    property real progress: 0
    property int photoCount: 0
    property var photos: []     // of each photo the source of its small picture; may be fewer than were taken
    property var detail: []     // of each area of the picture 0..1, row by row; empty before the first photo
    property var foundTurn: []  // degrees: upwards, to the right, clockwise
    property var foundQuality: ({})  // as docs/interface-map.md tells it
    property bool foundRead: false

    property string updatePhase: ""  // "offered", "fetching", "starting" or "failed"
    property string updateVersion: ""
    property real updateReceived: 0  // bytes
    property real updateTotal: 0     // 0 as long as it is not known
    property bool updateInterrupted: false
    property string updateFailure: ""
    property bool updateMayTryAgain: false

    // Its page comes between the capture and what the application shows next.
    readonly property bool foundShown: (state === states.tutorial || state === states.refining) && !foundRead
    readonly property bool somethingToLose: firstCameraStorable || (!saving && notice === ""
        && (secondCamera || state >= states.found || (state >= states.starting && photoCount > 0)))
    // What was accepted for the first camera, whatever becomes of the second one.
    readonly property bool firstCameraStorable: firstCameraAccepted && !saving

    // Nobody who has begun is interrupted by an offer.
    readonly property bool updateShown: !saving && (updatePhase === "offered" ? state <= states.introduction
                                                                              : updatePhase !== "")

    function offerUpdate(version) {
        updateVersion = version
        updatePhase = "offered"
    }
    function fetchUpdate() {
        updateReceived = 0
        updateTotal = 0
        updateInterrupted = false
        updatePhase = "fetching"
    }
    function updateProgressed(received, total) {
        updateReceived = received
        updateTotal = total
        updateInterrupted = false
    }
    function failUpdate(message, mayTryAgain) {
        updateFailure = message
        updateMayTryAgain = mayTryAgain
        updatePhase = "failed"
    }
    function startAttempt() {
        photoCount = 0
        photos = []
        detail = []
        movementText = ""
        holdStill = false
        foundRead = false
    }
    function showSaveText(message) {
        if (saving) savedText = message
        else refinementText = message
    }
}
