#include "Add-in/commands/getting_started_pages.h"

namespace fernwick {

/// Blanks at the ends of some lines are part of the texts.
const std::array<GettingStartedPage, kGettingStartedPages> kGettingStarted{{
    {" 1. Introduction", "welcome.jpg",
     "Welcome to Quinloft Fernwick!\r\n"
     "This introduction will show you the main features of Fernwick.\r\n"
     "Click the Next button below to get started."},
    {" 2. Custom Form Sizes", "forms.jpg",
     "In Visual Basic, Forms are used to create the screens that users will see on the device.\r\n"
     "When you open a new Fernwick project, a form is automatically added and its size is set for the screen of the "
     "target device.\r\n"
     "For example, when Palm OS\u00AE is the design target, new forms are sized to 160x160 pixels, the size of the "
     "screen on a typical Palm OS device.\r\n"
     "Unless you are designing a special kind of form, you should leave the form at its default size."},
    {" 3. Custom Controls (Tavlets)", "tavlets.jpg",
     "To create applications in Visual Basic, you add Controls to the forms.\r\n"
     "When developing with Fernwick, you must use custom Quinloft controls called Tavlets.\r\n"
     "Most Tavlets have icons with a small letter 'i' as shown in the picture.\r\n"
     "See 'Quinloft Tavlets' in the User's Guide for more information."},
    {" 4. Fernwick Menu", "menu.jpg",
     "When you install Fernwick, a 'Fernwick' menu is added to Visual Basic.\r\n"
     "The Fernwick menu provides access to many important features of Fernwick, including:\r\n"
     " * the User's Guide\r\n"
     " * Samples and Tutorials\r\n"
     " * Compile, Verify, and Deploy options\r\n"
     " * Fernwick Settings\r\n"
     " * Tamarik installation\r\n"
     "See the 'Fernwick Add-In Guide' in the User 's Guide for more information."}, // sic
    {" 5. Toolbars", "toolbars.jpg",
     "Fernwick inserts two new toolbars into Visual Basic.\r\n"
     "These toolbars complement the Fernwick menu for one-click "
     "access to the most frequently used functions, including:\r\n"
     " * Deploy application to default device\r\n"
     " * Fernwick settings\r\n"
     " * User's Guide\r\n"
     " * Zoom Window\r\n"
     " * Fernwick Utilities"},
    {" 6. In Start Menu", "startmenu.jpg",
     "You can access Fernwick features from outside of Visual Basic by clicking the Windows\u00AE Start button, and "
     "opening 'Programs:Fernwick.'\r\n"
     "From this menu you can:\r\n"
     " * Start a new Fernwick project\r\n"
     " * View the User's Guide\r\n"
     " * Open Samples and Tutorials\r\n"
     " * Install Tamarik"},
    {" 7. Project Template", "template.jpg",
     "If you run Visual Basic, or if you select the 'File: New Project' menu item, you need to select the 'Fernwick "
     "Project' template from the New Project window.\r\n"
     "This template is the only one that you can use to create a Fernwick project."},
    {" 8. Website", "website.jpg",
     "The Quinloft website provides many important resources for developers. A sampling \r\n"
     "of these features is listed below. Select one of the items and click the Open button \r\n"
     "to visit that area on the Quinloft website. (Requires an Internet connection.)"},
    {" 9. Next steps...", "finished.jpg",
     "Now you're ready to create mobile solutions with Fernwick!\r\n"
     "Next, we recommend that you view the Hello World tutorial. You can get to this tutorial \r\n"
     "from the Fernwick menu, or from the Fernwick item in the Windows Start menu.\r\n"
     "After that, be sure to check out the many other resources, including:"},
}};

} // namespace fernwick
