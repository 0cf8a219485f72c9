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
    Accessible.role: Accessible.Pane
    Accessible.name: "Vost"

    Loader {
        id: screen

        anchors.fill: parent
        focus: true
        active: sourceComponent === chats ? root.popover.holdsContent : (root.popover.visible || item !== null)
        sourceComponent: !root.host.hasCredentials ? configurationError
                                                   : (root.host.session.isReady ? chats : login)
    }

    Component {
        id: configurationError

        AppConfigurationErrorView {}
    }

    Component {
        id: login

        TelegramLoginView {
            session: root.host.session
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
