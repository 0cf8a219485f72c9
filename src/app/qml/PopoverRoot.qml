import QtQuick
import Vost.App
import Vost.Model

// The whole client inside the popover: the configuration error without
// credentials, the sign-in screen until the session is ready, then the chats.
// The chats are made with the window, ready for the first opening, and let go
// while the popover stays closed. The sign-in screen is made when first shown (an
// account that is signed in never needs it while it starts) and then keeps what is
// typed into it.
Rectangle {
    id: root

    required property AppRootView host
    required property PopoverWindow popover

    color: Appearance.background
    // A right-to-left language turns the whole popover around.
    LayoutMirroring.enabled: AppLanguage.isRightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Pane
    Accessible.name: "Vost"

    readonly property bool showsChats: root.host.hasCredentials && root.host.access.isReady
    // Whether the popover has been shown: from then on the sign-in screen stays.
    // (The loader's own item or component cannot tell: the loader announces both
    // while it makes its item, inside the change to what it should hold.)
    property bool wasShown: false

    Connections {
        target: root.popover

        function onVisibleChanged() {
            if (root.popover.visible)
                root.wasShown = true;
        }
    }

    Loader {
        id: screen

        anchors.fill: parent
        focus: true
        active: root.showsChats ? root.popover.holdsContent : root.wasShown
        sourceComponent: !root.host.hasCredentials ? configurationError : (root.showsChats ? chats : login)
    }

    Component {
        id: configurationError

        AppConfigurationErrorView {}
    }

    Component {
        id: login

        TelegramLoginView {
            session: root.host.access
            focus: true
        }
    }

    Component {
        id: chats

        ChatLayout {
            focus: true
            host: root.host
        }
    }
}
